#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QStackedWidget>

class QLabel;
class QLineEdit;
class QValidator;

/// A text that is edited in place: a double click, F2 or Enter starts the edit; Enter and the loss
/// of the focus take the text over, Escape leaves it as it was.
class ZELWIDGETS_EXPORT ZelEditableLabel : public QStackedWidget
{
    Q_OBJECT

public:
    explicit ZelEditableLabel(QWidget *parent = nullptr);
    ~ZelEditableLabel() override;

    /// The text as it stands outside an edit.
    QString getText() const;
    bool isEditable() const;

    /// Sets the text, of a running edit too.
    void setText(const QString &text);
    void setEditable(bool editable);
    /// The validator stays the caller's. An edit ends only with a text that it accepts.
    void setValidator(const QValidator *validator);
    /// Does nothing if the label isn't editable or is being edited.
    void startEdit();

Q_SIGNALS:
    /// An edit has ended; the text need not have changed.
    void editingFinished();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void stopEdit();
    void leaveEdit();

    QLabel *label_;
    QLineEdit *edit_;
    bool isEditable_ = true;
    bool isEditing_ = false;
};
