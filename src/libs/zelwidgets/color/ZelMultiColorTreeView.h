#pragma once

#include <ZelSceneGraph/Color>
#include <ZelWidgets/zelwidgets_export.h>

#include <QTreeView>

class ILibrary;
class ZelMultiColorListModel;

/// The list of sub-colours of a colour that it shares with its owner.
///
/// The current row is the active sub-colour. Names are edited in place (F2 or a double click), rows
/// dragged to another place (or moved with Alt+Up and Alt+Down), dragged out, and deleted (Delete
/// or the context menu). A colour dropped on a row replaces it, between rows it comes in there.
class ZELWIDGETS_EXPORT ZelMultiColorTreeView : public QTreeView
{
    Q_OBJECT

public:
    /// The library is the application's, handed on only; it may be null.
    explicit ZelMultiColorTreeView(ILibrary *library = nullptr, QWidget *parent = nullptr);
    ~ZelMultiColorTreeView() override;

    ILibrary *library() const { return library_; }
    ZelMultiColorListModel *colorModel() const { return model_; }
    const zelsg::Color &color() const;

    /// Shows this colour, by its handle: edits here are edits of that colour. An owner that assigns
    /// another colour to its variable calls this again. Emits nothing.
    void setColor(const zelsg::Color &color);
    /// Shows what became of the colour, and its active sub-colour as the current row. Emits
    /// nothing.
    void reload();
    /// Makes the sub-colour the active one and its row the current one. Emits nothing.
    void select(int index);
    /// Appends a sub-colour and makes it the active one; emits colorChanged().
    void addColor(const ZelColor &color);

public Q_SLOTS:
    /// The owner changed the colour: shows it. Of a cancelled change only an open editor is closed.
    void onColorChanged(zelsg::Color col, bool cancelled);
    /// Deletes the current sub-colour; the last one stays.
    void deleteCurrent();

Q_SIGNALS:
    /// The user wants this sub-colour, which has a name, in the library.
    void saveColorToLibrary(zelsg::Color col);
    /// The user made another sub-colour active, or edited the list (colour, name, order, number).
    /// The colour is the active one; the shared colour holds the change already.
    void colorChanged(ZelColor color);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    bool edit(const QModelIndex &index, EditTrigger trigger, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void startDrag(Qt::DropActions supportedActions) override;

private:
    void showActive();
    void saveToLibrary(int row);
    void updateIconSize();

    ILibrary *library_;
    ZelMultiColorListModel *model_;
    bool isShowing_ = false;
};
