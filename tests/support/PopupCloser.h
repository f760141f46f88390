#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

/// Closes every menu, list and modal dialog that comes up while it lives, and counts them; other
/// windows than those that were open before are closed at the end.
class PopupCloser : public QTimer
{
public:
    PopupCloser()
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible())
                kept_.append(widget);
        }
        callOnTimeout(this, [this] { close(); });
        start(0);
    }
    ~PopupCloser() override
    {
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible() && !kept_.contains(widget))
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
    QList<QPointer<QWidget>> kept_;
    QPointer<QWidget> last_;
};
