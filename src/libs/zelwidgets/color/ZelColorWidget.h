#pragma once

#include <ZelCore/ZelColor>
#include <ZelSceneGraph/Color>
#include <ZelWidgets/ZelFrame>
#include <ZelWidgets/zelwidgets_export.h>

#include <QColor>
#include <QPixmap>
#include <QString>

#include <memory>

class ILibrary;
class ZelColorWidgetPrivate;

/// A small field that shows a colour, opens the colour dialog on a click, and takes and gives
/// colours by drag and drop.
///
///     auto *field = new ZelColorWidget(color, QSize(48, 24), true, panel);
///     connect(field, &ZelColorWidget::colorUpdated, this, &Panel::takeColor);
///
/// The field keeps a colour of its own, whatever handle it was given, and never changes a colour
/// that it handed out. It is shown as it looks on the display; a colour that isn't opaque lies over
/// a checker, and a list of sub-colours, shown by its active one, wears a label. Space opens the
/// dialog as well, and so does Return if the field opens one.
class ZELWIDGETS_EXPORT ZelColorWidget : public ZelFrame
{
    Q_OBJECT

public:
    /// The size is fixed. A field that opens no dialog only tells of clicks.
    ZelColorWidget(const zelsg::Color &color, const QSize &size, bool opensDialog,
                   QWidget *parent = nullptr);
    /// An open dialog goes with the field.
    ~ZelColorWidget() override;

    /// With alpha, the field keeps that of the colour and its dialog has a slider for it; without,
    /// the colour is opaque. Emits nothing.
    void setColor(const QColor &color, bool hasAlpha);
    /// A copy of the whole colour, not shared with the field.
    zelsg::Color getColor() const;
    /// The shown colour.
    ZelColor getZelColor() const;
    /// The same, with the alpha if the field has one.
    QColor getQColor() const;

    /// The dialog can turn the colour into a list, if the feature "multi_colors" is on.
    void enableMakeMultiColor();
    void includeSaveToLibraryButton();
    /// The dialog blocks the other windows while it is open. A click doesn't open it then: who
    /// listens to clicked() calls showColorDialog() when it suits.
    void setShowModal(bool modal);
    /// Stands behind the dialog's own title.
    void setTitle(const QString &title);
    /// The dialog comes up with the temperature.
    void showKelvin();
    /// Handed on to the dialog; may be null, and must outlive the field otherwise.
    void setLibrary(ILibrary *library);
    /// The text is the dialog's name of the colour as well. Both are the colour's own name until
    /// this is called, and again once the user has changed the colour in the dialog.
    void setToolTip(const QString &text);
    /// Sets the property "ActiveBorder", on which the style sheet draws the highlight.
    void setBorderActive(bool active);
    /// Opens the dialog, or brings up the one that is open.
    void showColorDialog();

public Q_SLOTS:
    /// Replaces the shown colour. Emits nothing.
    void setActiveColor(ZelColor c);
    /// Emits nothing; an open dialog follows.
    void setColor(zelsg::Color c);
    /// Shows a picture, fitted to the field, until the next colour comes; a null one brings the
    /// colour back.
    void setPixmap(QPixmap px);
    /// Closes the dialog as its Cancel button does.
    void cancelColorDialog();

Q_SIGNALS:
    /// The user changed the colour in the dialog or dropped one, or cancelled the dialog and has
    /// the first colour back.
    void colorUpdated(zelsg::Color c);
    void saveColorToLibrary(zelsg::Color col);
    /// Any mouse button was pressed.
    void clicked(ZelColor color);
    void doubleClicked(ZelColor color);
    /// The dialog was accepted.
    void editingFinished();

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    friend class AccessibleColor;

    void setColorFromDialog(const zelsg::Color &col, bool cancelled);
    void setupDialog();
    void dialogFinished();
    void restoreAlpha();
    void showName();
    void take(const zelsg::Color &color);
    void activate();
    void startDrag();
    void updateFillBrush();

    std::unique_ptr<ZelColorWidgetPrivate> d_;
};
