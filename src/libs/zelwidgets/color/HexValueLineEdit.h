#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QLineEdit>

/// A field for a colour in up to six hexadecimal digits.
///
/// Return and Enter end the editing and go no further, so that a dialog around it stays open. A
/// colour text that is pasted or dropped is announced with colorPasted() and leaves the field as it
/// is; any other text goes through the input mask.
class ZELWIDGETS_EXPORT HexValueLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit HexValueLineEdit(QWidget *parent = nullptr);

    QSize sizeHint() const override;

public Q_SLOTS:
    /// Pastes the clipboard; the entry of the context menu comes here as well.
    void paste();

Q_SIGNALS:
    /// The numbers of the text: a display value.
    void colorPasted(ZelColor color);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool takeColor(const QString &text);
};
