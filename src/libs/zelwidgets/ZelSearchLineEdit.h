#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QLineEdit>

class QMenu;
class QToolButton;

/// A search field with a search button at its start and, while there is a text, a clear button at
/// its end. Escape clears the text too; with a menu, Alt and the down key open it.
class ZELWIDGETS_EXPORT ZelSearchLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ZelSearchLineEdit(QWidget *parent = nullptr);

    /// Gives the search button a menu, which stays the caller's; null takes it away.
    void setMenu(QMenu *menu);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private Q_SLOTS:
    void updateCloseButton(const QString &text);

private:
    QToolButton *addButton(const QString &icon, const QString &name);
    int frameWidth() const;
    bool isMirrored() const;
    void updateRoom();
    void placeButtons();

    QToolButton *clearButton_;
    QToolButton *searchButton_;
    bool isUpdatingRoom_ = false;
};
