#pragma once

#include "TestCase.h"

#include <limits>

constexpr float infinity = std::numeric_limits<float>::infinity();

/// Types a text into the field, in place of what is there, and ends the entry.
inline void enter(QWidget *field, const QString &text)
{
    QMetaObject::invokeMethod(field, "selectAll");
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}
