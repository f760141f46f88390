#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QSplitter>

/// A bar below a widget that drags the widget's fixed height, which nothing else changes. The
/// height is kept in the settings group "ui" under the object names of both.
class ZELWIDGETS_EXPORT ZelStableSplitter : public QSplitter
{
    Q_OBJECT

public:
    /// The widget stands above the splitter in one layout; it may die first.
    ZelStableSplitter(QWidget *widget, Qt::Orientation orientation, QWidget *parent);
    /// Stores the height.
    ~ZelStableSplitter() override;

    void saveSplitterState();
    /// In pixels; ignored unless 1 <= minimum <= maximum.
    void setHeightRange(int minimum, int maximum);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QString settingsKey() const;
    void setWidgetSize();
    void remember();

    int minHeight_ = 1;
    int maxHeight_ = QWIDGETSIZE_MAX;
    QPointer<QWidget> widget_;
    // What is stored if the widget goes first.
    QString key_;
    int height_ = 0;
};
