#pragma once

#include "ZelWidgetPolish.h"

#include <QBasicTimer>
#include <QObject>

#include <vector>

/// Polishes the hidden widgets that a change of the style sheet has left for later: those of a page
/// when the page is shown or painted, all others in small slices while the application is idle, so
/// that nothing keeps an old look for long.
class ZelHiddenPolish : public QObject
{
    Q_OBJECT

public:
    /// A hidden widget with hidden widgets in it.
    struct Page
    {
        QPointer<QWidget> root;
        ZelWidgetPolish::Widgets widgets;
        std::size_t next = 0; ///< the first that is not polished yet
    };

    /// The one object, a child of the application object.
    static ZelHiddenPolish &instance();

    /// Takes the pages over from a change of the style sheet.
    void take(std::vector<Page> pages);
    /// Polishes all that is left.
    void finish();
    /// Drops all that is left.
    void forget();

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    explicit ZelHiddenPolish(QObject *parent);
    void finishPage(std::vector<Page>::iterator position);

    std::vector<Page> pages_;
    QBasicTimer idle_;
};
