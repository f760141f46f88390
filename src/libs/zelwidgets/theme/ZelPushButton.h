#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPushButton>

/// The push button of the application. Two dynamic properties that the style sheet selects on
/// choose its look: "rank" ("Primary", "Secondary" at first, "Tertiary") and "dimension"
/// ("Medium" at first). A change after the button was shown needs a new polish:
///
///     button->setProperty("rank", QStringLiteral("Primary"));
///     button->style()->unpolish(button);
///     button->style()->polish(button);
class ZELWIDGETS_EXPORT ZelPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ZelPushButton(QWidget *parent = nullptr);
    explicit ZelPushButton(const QString &text, QWidget *parent = nullptr);
    ZelPushButton(const QIcon &icon, const QString &text, QWidget *parent = nullptr);
};
