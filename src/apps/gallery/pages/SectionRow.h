#pragma once

#include <QHBoxLayout>
#include <QVBoxLayout>

/// A line at the end of a section, for widgets side by side.
inline QHBoxLayout *addRow(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    section->addLayout(row);
    return row;
}
