#pragma once

#include <QIcon>
#include <QString>

class QPushButton;
class QStyleOptionButton;
class QWidget;

/// What the button of workspaces and its menu show.
namespace WorkSpaceRibbonLook {

/// A name as text of a button or an entry, where "&" would mark a key.
QString shownName(const QString &name);
/// The mark of a changed workspace for an entry, in the colour of links.
QIcon dotIcon(const QWidget *widget);
/// The same mark behind the text of the button.
void paintDot(QPushButton *button, const QStyleOptionButton &option);

} // namespace WorkSpaceRibbonLook
