// A drag step on a picture of 24 megapixels, as it is shown in a scroll area: the rectangle moves,
// or one of its corners does. Beside it the plain way, which composes the whole picture anew.

#include "BenchmarkRun.h"

#include <ZelWidgets/ZelImageCropWidget>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>

namespace {

constexpr QSize pictureSize(6000, 4000);
constexpr QSize areaSize(1600, 1000);

QPixmap picture()
{
    QPixmap result(pictureSize);
    QPainter painter(&result);
    QLinearGradient gradient(0, 0, pictureSize.width(), pictureSize.height());
    gradient.setColorAt(0, Qt::darkGreen);
    gradient.setColorAt(0.5, Qt::yellow);
    gradient.setColorAt(1, Qt::darkBlue);
    painter.fillRect(result.rect(), gradient);
    return result;
}

void send(QWidget *widget, QEvent::Type type, QPoint position)
{
    const bool isMove = type == QEvent::MouseMove;
    QMouseEvent event(
        type, position, widget->mapToGlobal(position), isMove ? Qt::NoButton : Qt::LeftButton,
        type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

void hover(QWidget *widget, QPoint position)
{
    QMouseEvent event(QEvent::MouseMove, position, widget->mapToGlobal(position), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

// To and fro by a step, each with its repaint.
void dragSteps(benchmark::State &state, bool atCorner)
{
    QScrollArea area;
    area.resize(areaSize);
    auto *widget = new ZelImageCropWidget(picture(), QSize(3, 2));
    area.setWidget(widget);
    area.show();
    // Away from the picture's edge, where nothing would move.
    for (int i = 0; i < 100; ++i) {
        QKeyEvent key(QEvent::KeyPress, Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        QApplication::sendEvent(widget, &key);
    }
    QApplication::processEvents();
    const QRect rect = widget->cropRect();
    const QPoint start = atCorner ? rect.bottomRight() : rect.center();
    const QPoint step(int(state.range(0)), int(state.range(0)));
    hover(widget, start);
    send(widget, QEvent::MouseButtonPress, start);
    bool isAway = false;
    for (auto _ : state) {
        isAway = !isAway;
        send(widget, QEvent::MouseMove, isAway ? start + step : start);
        QApplication::processEvents();
        if (isAway && widget->cropRect() == rect) {
            state.SkipWithError("the rectangle did not follow");
            break;
        }
    }
    send(widget, QEvent::MouseButtonRelease, start);
}

void wholePicture(benchmark::State &state)
{
    const QPixmap source = picture();
    QScrollArea area;
    area.resize(areaSize);
    auto *label = new QLabel;
    area.setWidget(label);
    area.setWidgetResizable(true);
    area.show();
    QApplication::processEvents();
    int offset = 0;
    for (auto _ : state) {
        offset = 20 - offset;
        QPixmap shown(source.size());
        shown.fill(QColor(70, 50, 50, 200));
        QPainter painter(&shown);
        const QRect rect(offset, offset, 5000, 3333);
        painter.fillRect(rect, Qt::white);
        painter.setCompositionMode(QPainter::CompositionMode_Multiply);
        painter.drawPixmap(0, 0, source);
        painter.setPen(Qt::black);
        painter.drawRect(rect);
        painter.end();
        label->setPixmap(shown);
        QApplication::processEvents();
    }
}

} // namespace

int main(int argc, char **argv)
{
    return runBenchmarks<QApplication>(argc, argv, [] {
        benchmark::RegisterBenchmark("dragStep/plain", wholePicture)->Unit(benchmark::kMillisecond);
        for (const bool atCorner : {false, true}) {
            benchmark::RegisterBenchmark(atCorner ? "dragStep/corner" : "dragStep/move", dragSteps,
                                         atCorner)
                ->Arg(4)
                ->Arg(20)
                ->Arg(80)
                ->Unit(benchmark::kMillisecond);
        }
    });
}
