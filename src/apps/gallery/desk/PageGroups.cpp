#include "PageGroups.h"

#include <QCoreApplication>

namespace {

QString text(const char *source)
{
    return QCoreApplication::translate("PageGroups", source);
}

QStringList list(const char *ids)
{
    return QString::fromLatin1(ids).split(u' ');
}

} // namespace

const QList<PageGroupEntry> &pageGroups()
{
    static const QList<PageGroupEntry> groups{
        {QStringLiteral("LookPages"), text("Look"), QStringLiteral("theme"),
         list("theme icons fonts stylesheet plain"), false},
        {QStringLiteral("ControlPages"), text("Controls"), QStringLiteral("check"),
         list("buttons labels texts menus grouping"), false},
        {QStringLiteral("NumberPages"), text("Numbers"), QStringLiteral("sliders"),
         list("fields parameters sliders sizes dials"), false},
        {QStringLiteral("ColorPages"), text("Colours"), QStringLiteral("palette"),
         list("colorvalues colorinputs colorplanes colordialog colorlists colorwidgets gradient"),
         false},
        {QStringLiteral("ListPages"), text("Lists"), QStringLiteral("list_toggle_mode"),
         list("iconlist tree headers"), false},
        {QStringLiteral("CurvePages"), text("Curves"), QStringLiteral("link"),
         list("curves animationcurve oldcurve rectitem"), true},
        {QStringLiteral("DialogPages"), text("Dialogs"), QStringLiteral("windows"),
         list("messages progress crop video notifications dialogs windows"), true},
        {QStringLiteral("KeyPages"), text("Keys"), QStringLiteral("gear"),
         list("shortcuts conflicts actions gestures"), true},
    };
    return groups;
}
