#pragma once

#include <QCoreApplication>
#include <QWidget>

/// A bare window that ends the program when it has been painted.
class FirstPaint : public QWidget
{
protected:
    void paintEvent(QPaintEvent *event) override
    {
        QWidget::paintEvent(event);
        QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    }
};
