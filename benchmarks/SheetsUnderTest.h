#pragma once

#include <QString>

/// The gallery's style sheet as finished text, for benchmarks.
namespace SheetsUnderTest {

/// The text of the `.style` file.
QString styleFile();
/// The finished sheet of a theme.
QString finished(const QString &theme);

} // namespace SheetsUnderTest
