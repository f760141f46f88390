#pragma once

#include <QString>
#include <QtTest>

#include <initializer_list>
#include <tuple>
#include <utility>

/// A table of named rows that are values of one type, a struct or a tuple:
///
///     using Sum = std::tuple<int, int, Text>;
///     void addsUp_data() { addRows<Sum>({{"small", {1, 2, "3"}}, {"none", {0, 0, "0"}}}); }
///     void addsUp() { const auto [a, b, text] = currentRow<Sum>(); ... }
template <typename Row>
void addRows(std::initializer_list<std::pair<const char *, Row>> rows)
{
    QTest::addColumn<Row>("row");
    for (const auto &[name, row] : rows)
        QTest::newRow(name) << row;
}

/// The row of the running test function.
template <typename Row>
Row currentRow()
{
    QFETCH(Row, row);
    return row;
}

/// A cell that can be written as a literal.
class Text : public QString
{
public:
    Text() = default;
    Text(const QString &text)
        : QString(text)
    {}
    Text(const char *utf8)
        : QString(QString::fromUtf8(utf8))
    {}
};

template <>
inline char *QTest::toString(const Text &text)
{
    return QTest::toString(static_cast<const QString &>(text));
}
