#pragma once

#include "TestCase.h"

#include <ZelWidgets/ZelDoubleEdit>
#include <ZelWidgets/ZelDoubleSlider>
#include <ZelWidgets/ZelDoubleSliderEdit>

#include <limits>

constexpr double infinity = std::numeric_limits<double>::infinity();

using Row = ZelDoubleSliderEdit;

inline std::unique_ptr<Row> makeRow(float *value, double minimum = 0, double maximum = 1,
                                    float limitMinimum = 0, float limitMaximum = 100)
{
    return std::make_unique<Row>(QStringLiteral("Radius"), minimum, maximum, value, limitMinimum,
                                 limitMaximum, nullptr, nullptr, false);
}

inline ZelDoubleEdit *editOf(QWidget *row)
{
    return row->findChild<ZelDoubleEdit *>();
}

inline ZelDoubleSlider *sliderOf(QWidget *row)
{
    return row->findChild<ZelDoubleSlider *>();
}

inline void typeInto(QAbstractSpinBox *field, const QString &text)
{
    field->selectAll();
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

inline void show(QWidget *widget)
{
    widget->show();
    QVERIFY(QTest::qWaitForWindowActive(widget));
}
