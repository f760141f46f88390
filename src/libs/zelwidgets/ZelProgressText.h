#pragma once

#include <QString>

class QWidget;

/// The text of a progress dialog with its long lines cut in the middle, where a path can spare
/// most; the dialog would leave the screen otherwise. Rich text stays as it is.
QString zelElidedProgressText(const QString &text, const QWidget *widget);
