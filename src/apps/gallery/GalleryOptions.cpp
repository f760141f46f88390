#include "GalleryOptions.h"

#include "PageCatalog.h"

#include <ZelWidgets/ZelStyleSheets>

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

constexpr double smallestScale = 0.5;
constexpr double largestScale = 4.0;

[[noreturn]] void refuse(const QString &reason)
{
    std::fprintf(stderr, "gallery: %s\n", qPrintable(reason));
    std::exit(2);
}

QString themeKey(const QString &name)
{
    const auto themes = ZelStyleSheets::colorThemeList();
    const auto found = std::find_if(themes.begin(), themes.end(), [&](const auto &theme) {
        return theme.second.compare(name, Qt::CaseInsensitive) == 0;
    });
    if (found == themes.end())
        refuse(QStringLiteral("there is no theme \"%1\"; use Dark or Light").arg(name));
    return found->second;
}

double scaleNumber(const QString &text)
{
    bool isNumber = false;
    const double scale = text.toDouble(&isNumber);
    if (!isNumber || !(scale >= smallestScale && scale <= largestScale))
        refuse(QStringLiteral("the scale has to be a number from 0.5 to 4"));
    return scale;
}

} // namespace

GalleryOptions GalleryOptions::fromArguments(const QStringList &arguments)
{
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("Open this page alone."),
                                  QStringLiteral("name"));
    const QCommandLineOption list(QStringLiteral("list-pages"),
                                  QStringLiteral("List the pages and leave."));
    const QCommandLineOption theme(QStringLiteral("theme"), QStringLiteral("Dark or Light."),
                                   QStringLiteral("name"));
    const QCommandLineOption scale(QStringLiteral("scale"),
                                   QStringLiteral("Scale factor of all windows, 0.5 to 4."),
                                   QStringLiteral("factor"));
    const QCommandLineOption screenshots(
        QStringLiteral("screenshots"),
        QStringLiteral(
            "Write a picture of every page and of the factory workspaces in both themes (or in the "
            "one of --theme) and leave."),
        QStringLiteral("folder"));
    const QCommandLineOption settings(QStringLiteral("settings"),
                                      QStringLiteral("Settings file to use."),
                                      QStringLiteral("file"));
    QCommandLineOption bundles(QStringLiteral("write-workspaces"), QString(),
                               QStringLiteral("folder"));
    bundles.setFlags(QCommandLineOption::HiddenFromHelp);
    QCommandLineOption timeStart(QStringLiteral("time-start"));
    timeStart.setFlags(QCommandLineOption::HiddenFromHelp);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every widget of zelwidgets at work."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOptions({page, list, theme, scale, screenshots, settings, bundles, timeStart});
    parser.process(arguments);

    GalleryOptions options;
    options.page = parser.value(page);
    if (!options.page.isEmpty() && pageIndex(options.page) < 0)
        refuse(
            QStringLiteral("there is no page \"%1\"; --list-pages names them").arg(options.page));
    if (parser.isSet(theme))
        options.theme = themeKey(parser.value(theme));
    if (parser.isSet(scale))
        options.scale = scaleNumber(parser.value(scale));
    options.screenshotFolder = parser.value(screenshots);
    options.settingsFile = parser.value(settings);
    options.bundleFolder = parser.value(bundles);
    options.timeStart = parser.isSet(timeStart);
    options.listPages = parser.isSet(list);
    return options;
}

std::optional<double> GalleryOptions::scaleFromArguments(int argc, char **argv)
{
    constexpr const char *name = "--scale";
    const size_t length = std::strlen(name);
    for (int i = 1; i < argc; ++i) {
        if (std::strncmp(argv[i], name, length) != 0)
            continue;
        const char *rest = argv[i] + length;
        if (*rest == '=')
            return scaleNumber(QString::fromLocal8Bit(rest + 1));
        if (*rest == '\0' && i + 1 < argc)
            return scaleNumber(QString::fromLocal8Bit(argv[i + 1]));
    }
    return std::nullopt;
}
