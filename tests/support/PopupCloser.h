#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

/// Closes every menu, list and modal dialog that comes up while it lives, and counts them; other
/// windows than the one to be kept are closed at the end.
class PopupCloser : public QTimer
{
public:
    explicit PopupCloser(QWidget *kept)
        : kept_(kept)
    {
        callOnTimeout(this, [this] { close(); });
        start(0);
    }
    ~PopupCloser() override
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && widget != kept_)
                widget->close();
        }
    }
    int count() const { return count_; }

private:
    void close()
    {
        QWidget *top = QApplication::activePopupWidget();
        if (!top)
            top = QApplication::activeModalWidget();
        if (!top || !top->isVisible())
            return;
        if (top != last_)
            ++count_;
        last_ = top;
        if (auto *dialog = qobject_cast<QDialog *>(top))
            dialog->reject();
        else
            top->close();
    }

    int count_ = 0;
    QPointer<QWidget> kept_;
    QPointer<QWidget> last_;
};
