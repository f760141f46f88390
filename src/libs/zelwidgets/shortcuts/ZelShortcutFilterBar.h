#pragma once

#include "ZelShortcutFilter.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QToolButton;
class ZelKeyRecorder;
class ZelSearchLineEdit;

/// The controls by which users choose what an editor of shortcuts shows.
class ZelShortcutFilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit ZelShortcutFilterBar(QWidget *parent = nullptr);

    const ZelShortcutFilter &filter() const { return filter_; }
    void setCount(int shown, int all);

Q_SIGNALS:
    void changed();
    /// The user is through with the keys, or leaves the search text for the rows.
    void left();

private:
    void setKeys(const QKeySequence &keys);
    QCheckBox *addCheckBox(const QString &text, bool ZelShortcutFilter::*flag);

    ZelShortcutFilter filter_;
    ZelSearchLineEdit *search_;
    ZelKeyRecorder *keys_;
    QToolButton *clearKeys_;
    QLabel *count_;
};
