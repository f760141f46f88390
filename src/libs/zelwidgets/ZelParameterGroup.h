#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

class QVBoxLayout;
class ZelFlipLabel;

/// A group of parameters under a caption that flips open its details; they are hidden at first.
///
///     auto *group = new ZelParameterGroup(tr("Bump"), panel);
///     group->setGroupWidget(strengthRow);
///     group->addDetailWidget(filterRow);
class ZELWIDGETS_EXPORT ZelParameterGroup : public QWidget
{
    Q_OBJECT

public:
    explicit ZelParameterGroup(QString const &text, QWidget *parent = nullptr);

    /// Adds a widget to the details and owns it.
    void addDetailWidget(QWidget *widget, int stretch = 0,
                         QFlags<Qt::AlignmentFlag> alignment = {});
    /// Adds a widget below the caption, in sight also while the details are not, and owns it.
    void setGroupWidget(QWidget *widget, int stretch = 0, QFlags<Qt::AlignmentFlag> alignment = {});
    ZelFlipLabel *groupLabel() const { return label_; }
    /// Shows or hides the details.
    void setOpen(bool open);

Q_SIGNALS:
    /// One of the widgets of the group, of those that have a signal of this name, has emitted it.
    void valueUpdated();

protected Q_SLOTS:
    void widgetFlip();

protected:
    void changeEvent(QEvent *event) override;

private:
    void indentDetails();
    void relayValueUpdated(QWidget *widget);

    QWidget *groupWidget_;
    QWidget *detailWidget_;
    ZelFlipLabel *label_;
    QVBoxLayout *groupLayout_;
    QVBoxLayout *detailLayout_;
};
