#pragma once

#include "TestCase.h"
#include "UserInput.h"

#include "color/ZelColorMime.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QPointer>

#include <memory>

inline ZelColor named(const char *name, float red, float green, float blue)
{
    ZelColor color(ZelColor::Space::RGB, red, green, blue);
    color.setName(name);
    return color;
}

inline std::unique_ptr<QMimeData> dataOf(const zelsg::Color &color)
{
    auto data = std::make_unique<QMimeData>();
    ZelColorMime::encode(color, data.get());
    return data;
}

inline std::unique_ptr<QMimeData> rawData(const QString &type, const QByteArray &bytes)
{
    auto data = std::make_unique<QMimeData>();
    data->setData(type, bytes);
    return data;
}

inline bool drop(QAbstractItemView &view, QPoint place, const QMimeData *data)
{
    return UserInput::dropOn(view.viewport(), place, *data);
}

inline QPoint middle(const QAbstractItemView &view, int row, int column = 0)
{
    return view.visualRect(view.model()->index(row, column)).center();
}

/// Opens the context menu, triggers the entry of that text and gives all texts.
inline QStringList useMenu(QAbstractItemView &view, QPoint place, const QString &entry)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(view.viewport(), &event);
    QStringList texts;
    const QPointer<QWidget> menu = QApplication::activePopupWidget();
    if (!menu)
        return texts;
    for (QAction *action : menu->actions()) {
        texts.append(action->text());
        if (action->text() == entry)
            action->trigger();
    }
    if (menu)
        menu->close();
    return texts;
}

/// Watches the model, and ends the run if it breaks the rules of models.
using Tester = QAbstractItemModelTester;
constexpr auto fatal = Tester::FailureReportingMode::Fatal;

inline void show(QWidget &widget)
{
    widget.resize(300, 200);
    widget.show();
    widget.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&widget));
}
