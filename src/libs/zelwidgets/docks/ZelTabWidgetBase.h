#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QTabWidget>

/// A tab widget for side panels: its least width is that of its widest page, whichever is shown.
class ZELWIDGETS_EXPORT ZelTabWidgetBase : public QTabWidget
{
    Q_OBJECT

public:
    explicit ZelTabWidgetBase(QWidget *parent = nullptr);

    /// The number of pages, with those that have left the tabs for a time.
    virtual int actualCount() const;
    /// Lets the least height be that of the current page in the place of the tallest.
    void setSizeHintFromCurrentPage(bool on);
    bool sizeHintFromCurrentPage() const { return sizeHintFromCurrentPage_; }

    /// Small, so that a dock takes the minimum.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    /// The pages that have left the tabs for a time; they count for the width.
    virtual QList<QWidget *> tornOutPages() const;
    virtual int minimumTabWidth() const;
    void forgetMinimumWidth();

    bool event(QEvent *event) override;
    void tabInserted(int index) override;
    void tabRemoved(int index) override;

private:
    int computeMinimumWidth() const;
    int surplusHeight() const;

    bool sizeHintFromCurrentPage_ = false;
    mutable int cachedMinWidth_ = -1;
};
