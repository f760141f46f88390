#pragma once

#include <QColor>

class QTextDocument;

/// Links in rich text. A document takes the colour of its links from the application's palette
/// when its text is set, and keeps it; so a change of the palette has to be carried into it.
namespace ZelLinkColors {

/// Gives links of the one colour the other one.
void recolor(QTextDocument &document, const QColor &from, const QColor &to);

/// The same in all labels and read-only text views of the application. Text that the user can
/// edit is not touched.
void recolorApplication(const QColor &from, const QColor &to);

} // namespace ZelLinkColors
