#include "ZelStyleSheets.h"

#include "GlobalEventFilter.h"
#include "IconColorTheme.h"
#include "StyleSheetChangeProgress.h"
#include "StyleSheetErrorLocator.h"
#include "ZelFontMetrics.h"
#include "ZelHyperLinkStyler.h"
#include "ZelLinkColors.h"
#include "ZelPushButton.h"
#include "ZelStylePalette.h"
#include "ZelStyleSwitch.h"
#include "ZelVerifyStyleSheetWidget.h"
#include "ZelWidgetPolish.h"

#include <ZelCore/ZelGlobalIconCache>
#include <ZelCore/ZelSettings>

#include <QApplication>
#include <QComboBox>
#include <QDebug>
#include <QDialog>
#include <QFile>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <optional>

namespace {

ZelStylePalette::Table &paletteTable()
{
    static ZelStylePalette::Table table;
    return table;
}

bool isFirstApplication = true;
int applicationCount = 0;

QString themeKey()
{
    return QStringLiteral("colortheme");
}

ZelSettings uiSettings()
{
    return ZelSettings(QStringLiteral("ui"));
}

std::optional<QString> readStyleFile()
{
    QFile file(QStringLiteral(":/res/zelmora.style"));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return QString::fromUtf8(file.readAll());
}

void reportPlainSvg(const QString &text)
{
    constexpr qsizetype lead = 70;
    constexpr qsizetype excerptLength = 100;
    const qsizetype position = text.indexOf(QLatin1String(".svg"));
    if (position < 0)
        return;
    qCritical() << "StyleSheet has plain .svg file rather than .zelsvg here "
                << text.mid(std::max<qsizetype>(position - lead, 0), excerptLength);
}

void loadIconTheme(const QString &themeName)
{
    const bool isDark = themeName.toLower().contains(QLatin1String("dark"));
    IconColorTheme::instance()->loadThemeFile(
        isDark ? QStringLiteral(":res/icon_themes/dark_theme.json")
               : QStringLiteral(":res/icon_themes/light_theme.json"));
    ZelGlobalIconCache::setDarkTheme(isDark);
}

// The sheet with the palette's values in it, and the palette of a text that has one taken over.
QString resolvePalette(const QString &text, const QString &themeName)
{
    const ZelStylePalette::Sections sections = ZelStylePalette::splitSections(text);
    if (!sections.hasPalette)
        return sections.sheet;
    paletteTable() = ZelStylePalette::parse(sections.palette.simplified());
    const auto theme = paletteTable().find(themeName.toStdString());
    return theme == paletteTable().end()
               ? sections.sheet
               : ZelStylePalette::substitute(sections.sheet, theme->second);
}

void updateLinkColors()
{
    const QColor before = QApplication::palette().color(QPalette::Link);
    ZelHyperLinkStyler::updateApplicationPalette();
    ZelLinkColors::recolorApplication(before, QApplication::palette().color(QPalette::Link));
}

// Text editors paint their placeholder with a palette that they copy when they are told of a new
// one, and of the events that tell so each visible widget gets one only in the style-change mode.
void updateTextEditorPalettes()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (widget->isVisible() &&
            (qobject_cast<QPlainTextEdit *>(widget) || qobject_cast<QTextEdit *>(widget))) {
            QEvent change(QEvent::PaletteChange);
            QCoreApplication::sendEvent(widget, &change);
        }
    }
}

// A combo box forgets its least size only when it is told of a new style, which the filter swallows
// in the style-change mode: it would never get smaller again.
void updateComboBoxSizes()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        if (!qobject_cast<QComboBox *>(widget))
            continue;
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &change);
    }
}

int fontSizeOfSheet()
{
    const int chosen = ZelFontMetrics::getZelmoraFontSizeSetting();
    return ZelFontMetrics::adjustFontSize(chosen < 1 ? ZelFontMetrics::getApplicationFontSize()
                                                     : chosen);
}

} // namespace

QString ZelStyleSheets::parseFullStyleSheet(const QString &themeName, QString sheet)
{
    if (sheet.isEmpty()) {
        const std::optional<QString> text = readStyleFile();
        if (!text)
            return QString();
        sheet = *text;
        reportPlainSvg(sheet);
    }
    loadIconTheme(themeName);
    return ZelStylePalette::withFontRule(resolvePalette(sheet, themeName), fontSizeOfSheet());
}

bool ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(const QString &themeName, QString sheet,
                                                    bool fontChanged)
{
    const QString finished = parseFullStyleSheet(themeName, std::move(sheet));
    if (finished.isEmpty() && !themeName.isEmpty())
        return false;
    applyStyleSheetToApplication(finished, fontChanged);
    return true;
}

void ZelStyleSheets::applyStyleSheetToApplication(const QString &sheet, bool fontChanged)
{
    GlobalEventFilter *filter = GlobalEventFilter::instance();
    if (!filter)
        return;
    std::optional<StyleSheetChangeProgress> progress;
    const int count = ++applicationCount;
    if (!isFirstApplication) {
        // Runs events; so it has to be there before the filter begins to swallow any.
        progress.emplace(sheet);
        // One of them was a later switch, whose icon colours are loaded as well.
        if (count != applicationCount)
            return;
        filter->setStyleChangeMode(true, !fontChanged);
    }
    isFirstApplication = false;
    ZelStyleSwitch::apply(sheet, fontChanged ? ZelStyleSwitch::HiddenWidgets::Now
                                             : ZelStyleSwitch::HiddenWidgets::Later);
    filter->setStyleChangeMode(false, false);
    if (fontChanged)
        updateComboBoxSizes();
    updateTextEditorPalettes();
    updateLinkColors();
}

bool ZelStyleSheets::updateColorTheme(bool fontChanged)
{
    return parseStyleSheetAndSetAsAppRoot(colorThemeFromSettings(), QString(), fontChanged);
}

QString ZelStyleSheets::colorThemeFromSettings()
{
    const QVariant theme = uiSettings().value(themeKey());
    return theme.typeId() == QMetaType::QString ? theme.toString() : QStringLiteral("Dark");
}

void ZelStyleSheets::updateColorThemeSettings(const QString &key)
{
    uiSettings().setValue(themeKey(), key, QString());
}

QList<std::pair<QString, QString>> ZelStyleSheets::colorThemeList()
{
    return {{tr("Dark"), QStringLiteral("Dark")}, {tr("Light"), QStringLiteral("Light")}};
}

void ZelStyleSheets::parseAllStyleSheets()
{
    const std::optional<QString> text = readStyleFile();
    if (!text) {
        qCritical() << "Could not load stylesheet";
        return;
    }
    const QString clean = ZelStylePalette::withoutComments(*text);
    ZelStylePalette::Table table;
    ZelStylePalette::parseStrictly(ZelStylePalette::splitSections(clean).palette, table);
    for (const auto &[theme, colors] : table)
        parseFullStyleSheet(QString::fromStdString(theme), clean);
}

void ZelStyleSheets::appendStylesheetCheck(QString &sheet, const QString &name)
{
    sheet += StyleSheetErrorLocator::nameRule(name);
}

bool ZelStyleSheets::verifyStylesheetApplied(const QString &sheet, const QString &name)
{
    ZelVerifyStyleSheetWidget probe;
    probe.ensurePolished();
    if (probe.stylename() == name)
        return true;

    QStringList lines = sheet.split(QLatin1Char('\n'));
    const auto place =
        StyleSheetErrorLocator::locate(lines, [&probe](const QString &beginning, int line) {
            ZelStyleSwitch::install(beginning);
            ZelWidgetPolish::polish(&probe);
            return probe.errorLine() == line;
        });
    ZelStyleSwitch::polishWidgets(ZelStyleSwitch::HiddenWidgets::Now);
    showStylesheetError(place.errorLine, place.lastGoodLine, getRemovedLineCount(int(lines.size())),
                        lines);
    return false;
}

int ZelStyleSheets::getRemovedLineCount(int sheetLineCount)
{
    const QString text = readStyleFile().value_or(QString());
    return int(text.count(QLatin1Char('\n'))) + 1 - sheetLineCount;
}

void ZelStyleSheets::showStylesheetError(int errorLine, int lastGoodLine, int removedLines,
                                         const QList<QString> &sheetLines)
{
    QDialog dialog;
    dialog.setModal(true);
    dialog.setWindowFlag(Qt::WindowStaysOnTopHint);
    dialog.setWindowTitle(QStringLiteral("Error in stylesheet"));

    auto *text = new QTextEdit(&dialog);
    auto *button = new ZelPushButton(QStringLiteral("OK, I will fix it."), &dialog);
    auto *layout = new QVBoxLayout(&dialog);
    layout->addWidget(text);
    layout->addWidget(button);
    QObject::connect(button, &QPushButton::clicked, &dialog, &QDialog::accept);

    text->setPlainText(StyleSheetErrorLocator::heading({errorLine, lastGoodLine}, removedLines));
    const int end = std::min(errorLine, int(sheetLines.size()));
    for (int line = std::max(lastGoodLine, 0); line < end; ++line)
        text->append(sheetLines.at(line));
    dialog.exec();
}
