#include "gradient/ZelGradientCommands.h"

#include "color/ZelColorConversion.h"

#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientDisplay>
#include <ZelWidgets/ZelGradientText>

#include <QClipboard>
#include <QDebug>
#include <QGuiApplication>
#include <QInputDialog>
#include <QLocale>

namespace {

constexpr int leastStops = 2;
constexpr double percent = 100.0;
constexpr int decimals = 3;

QString percentText(float part)
{
    return QLocale().toString(double(part) * percent, 'f', 1);
}

void tellOfEdit(ZelGradientDisplay *display)
{
    Q_EMIT display->gradientChanged();
}

} // namespace

QString ZelGradientCommands::textOf(const ZelGradientStop &stop)
{
    if (stop.isAlpha()) {
        return ZelGradientDisplay::tr("Position %1 %, opacity %2 %")
            .arg(percentText(stop.location()), percentText(stop.alpha()));
    }
    return ZelGradientDisplay::tr("Position %1 %, color %2")
        .arg(percentText(stop.location()), toDisplayQColor(stop.color()).name());
}

bool ZelGradientCommands::canRemoveSelected(const ZelGradient *gradient)
{
    return gradient && gradient->selected() && gradient->stops() > leastStops;
}

void ZelGradientCommands::removeSelected(ZelGradientDisplay *display)
{
    if (!canRemoveSelected(display->gradient()))
        return;
    display->gradient()->removeStop(display->gradient()->selected());
    tellOfEdit(display);
}

void ZelGradientCommands::reverse(ZelGradientDisplay *display)
{
    if (!display->gradient())
        return;
    display->gradient()->reverse();
    tellOfEdit(display);
}

void ZelGradientCommands::distributeEvenly(ZelGradientDisplay *display)
{
    if (!display->gradient())
        return;
    display->gradient()->distributeEvenly();
    tellOfEdit(display);
}

void ZelGradientCommands::copy(const ZelGradientDisplay *display)
{
    if (const ZelGradient *gradient = display->gradient())
        QGuiApplication::clipboard()->setText(ZelGradientText::write(*gradient));
}

bool ZelGradientCommands::canPaste()
{
    return QGuiApplication::clipboard()->text().trimmed().startsWith(QLatin1String("zelgradient"));
}

void ZelGradientCommands::paste(ZelGradientDisplay *display)
{
    if (!display->gradient())
        return;
    QString error;
    if (ZelGradientText::read(QGuiApplication::clipboard()->text(), *display->gradient(), &error))
        tellOfEdit(display);
    else
        qWarning() << "The pasted text is not a gradient:" << error;
}

void ZelGradientCommands::askForPosition(ZelGradientDisplay *display)
{
    ZelGradientStop stop =
        display->gradient() ? display->gradient()->selected() : ZelGradientStop();
    if (stop.isNull())
        return;
    auto *dialog = new QInputDialog(display);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(ZelGradientDisplay::tr("Position of the Stop"));
    dialog->setLabelText(ZelGradientDisplay::tr("Position in percent"));
    dialog->setInputMode(QInputDialog::DoubleInput);
    dialog->setDoubleDecimals(decimals);
    dialog->setDoubleRange(0, percent);
    dialog->setDoubleValue(double(stop.location()) * percent);
    QObject::connect(dialog, &QInputDialog::doubleValueSelected, display,
                     [display, stop](double position) mutable {
                         if (stop.isNull())
                             return;
                         stop.setLocation(float(position / percent));
                         tellOfEdit(display);
                     });
    dialog->open();
}
