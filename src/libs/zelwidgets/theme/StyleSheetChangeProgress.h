#pragma once

#include <QWidget>

class SimpleProgressBar;

/// The small window that shows how far a change of the theme has come. It is on the screen when
/// the constructor returns, and follows the count of the application's event filter.
///
/// The constructor runs the event loop twice (without user input): its caller has to survive
/// whatever the application's posted events do.
class StyleSheetChangeProgress : public QWidget
{
    Q_OBJECT

public:
    /// The window wears the new sheet, so that it shows the coming look.
    explicit StyleSheetChangeProgress(const QString &newSheet);

private:
    void showCount();

    SimpleProgressBar *bar_;
};
