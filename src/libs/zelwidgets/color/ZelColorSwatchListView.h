#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QListView>

class ColorSwatchModel;

/// The swatch list: the user's colours as a field of icons, stored when the view goes.
///
/// Colours are dropped on it, deleted with the Delete key or by the context menu, several at once
/// if several are selected, and exchanged as palette files by the menu of the free space. Return
/// and Space pick the current colour as a click does.
class ZELWIDGETS_EXPORT ZelColorSwatchListView : public QListView
{
    Q_OBJECT

public:
    explicit ZelColorSwatchListView(QWidget *parent = nullptr);
    ~ZelColorSwatchListView() override;

    /// Owned by the view.
    ColorSwatchModel *swatchModel() const { return model_; }
    /// Appends the colour with its name and scrolls to it.
    void addColor(const ZelColor &color);

    /// Makes the row the current and only selected one, and emits its colour, as a click does.
    void pick(const QModelIndex &index);

    /// Appends the colours of a palette file (.gpl), and writes all to one, as they are shown. What
    /// went wrong is given back as a text for the user, empty if nothing did.
    QString importPalette(const QString &fileName);
    QString exportPalette(const QString &fileName) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Removes the selected colours.
    void deleteSelected();
    /// Ask for the file, and tell the user what went wrong.
    void importByUser();
    void exportByUser();

Q_SIGNALS:
    /// A colour was clicked, or picked by key.
    void colorChanged(ZelColor c);
    void doubleClick(ZelColor c);

protected:
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    void deleteAt(const QModelIndex &index);
    void updateIconSize();

    ColorSwatchModel *model_;
};
