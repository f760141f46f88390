#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPixmap>
#include <QWidgetAction>

/// A small button with a picture in menus and tool bars. A click triggers the action.
///
/// In a menu the button shows picture and text, is highlighted like any entry and closes the menu
/// (unless the action is one that leaves a ZelMenu open). In a tool bar it follows the bar's icon
/// size and button style. Later changes of the action's icon, texts and checked state are shown.
class ZELWIDGETS_EXPORT ZelButtonAction : public QWidgetAction
{
    Q_OBJECT

public:
    ZelButtonAction(const QPixmap &picture, const QString &text, const QString &toolTip,
                    QObject *parent);

protected:
    QWidget *createWidget(QWidget *parent) override;

private Q_SLOTS:
    void onClicked();
};
