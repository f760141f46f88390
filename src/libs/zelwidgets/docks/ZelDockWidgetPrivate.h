#pragma once

#include <QCursor>
#include <QMap>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QSize>

#include <optional>

class QScreen;
class QVBoxLayout;
class QWidget;
class ZelDockWidgetTitle;

class ZelDockWidgetPrivate
{
public:
    QPointer<ZelDockWidgetTitle> title;
    QPointer<QWidget> contents;
    QPointer<QWidget> holder;
    QVBoxLayout *layout = nullptr;
    QSet<QObject *> filtered;

    QPoint pressOffset;
    QPoint pressGlobal;
    QRect startGeometry;
    QSize minSizeAtPress;
    int resizeState = 0;
    QCursor savedCursor;

    Qt::DockWidgetArea area = Qt::NoDockWidgetArea;
    bool topLevel = false;
    bool dropFrame = false;
    bool forceFloating = false;
    bool releaseTold = false;

    QScreen *screen = nullptr; ///< for comparison only, it may be gone
    std::optional<QMap<QScreen *, QSize>> sizeByScreen;
};
