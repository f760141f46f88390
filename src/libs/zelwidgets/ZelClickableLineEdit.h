#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QLineEdit>

/// A read-only field that looks and acts like a link: underlined, with a pointing hand over it.
/// Space and Enter act as a click.
class ZELWIDGETS_EXPORT ZelClickableLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ZelClickableLineEdit(QWidget *parent = nullptr);
    ~ZelClickableLineEdit() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// Emitted when a mouse button is released over the field.
    void clicked();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void showHand(bool show);

    bool hasHand_ = false;
};
