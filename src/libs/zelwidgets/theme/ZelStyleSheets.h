#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QCoreApplication>
#include <QList>
#include <QString>

#include <utility>

/// Makes the application's style sheet for a colour theme and installs it.
///
/// The application provides the file ":/res/zelmora.style": a palette, a JSON object that maps
/// each theme name to an object of keys and their replacement, then the line
/// "// BEGIN STYLESHEET SECTION", then a Qt style sheet in which the keys stand for values. A start
/// and a switch of the theme:
///
///     ZelStyleSheets::updateColorTheme(false);
///     ...
///     ZelStyleSheets::updateColorThemeSettings(QStringLiteral("Light"));
///     ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(QStringLiteral("Light"), QString(), false);
///
/// Rules are to be separated by blank lines and not to hold any, so that an error can be found.
/// To be used in the GUI thread only.
class ZELWIDGETS_EXPORT ZelStyleSheets
{
    Q_DECLARE_TR_FUNCTIONS(ZelStyleSheets)

public:
    ZelStyleSheets() = delete;

    /// The finished sheet of a theme, and the theme's icon colours loaded. An empty text stands for
    /// the application's file; a text without a palette section only gets its font rule exchanged.
    /// Empty if the file can't be read. A faulty palette is told as a critical message.
    static QString parseFullStyleSheet(const QString &themeName, QString sheet);
    /// Makes the sheet and installs it on the application. All but the first call show a progress
    /// window, which runs posted events. With fontChanged the widgets hear of their new font.
    /// False, and nothing changes, if a theme was named and its sheet is empty.
    static bool parseStyleSheetAndSetAsAppRoot(const QString &themeName, QString sheet,
                                               bool fontChanged);
    /// Installs the theme of the settings; for the start, and after a change of the font size.
    static bool updateColorTheme(bool fontChanged);

    /// The theme that the user chose (group "ui", key "colortheme"); "Dark" at first and
    /// if no text is stored.
    static QString colorThemeFromSettings();
    /// Stores the user's choice; installs nothing.
    static void updateColorThemeSettings(const QString &key);
    /// The themes to choose from, as pairs of label and key.
    static QList<std::pair<QString, QString>> colorThemeList();

    /// Goes through the sheets of all themes of the file, for the messages of their faults. Lets
    /// the exceptions of the JSON library out if the palette is faulty; the icon colours of the
    /// last theme stay loaded.
    static void parseAllStyleSheets();

    /// Puts a rule behind the sheet by which verifyStylesheetApplied() knows that it was applied.
    static void appendStylesheetCheck(QString &sheet, const QString &name);
    /// True if the sheet, prepared with that name and installed, was understood to its end. If
    /// not, looks for the place of the error, which leaves a part of the sheet installed, and shows
    /// it in a modal dialog.
    static bool verifyStylesheetApplied(const QString &sheet, const QString &name);
    /// Lines of the application's file that aren't in a sheet of so many lines.
    static int getRemovedLineCount(int sheetLineCount);
    /// Shows the lines from the last good one up to the erroneous one in a modal dialog.
    static void showStylesheetError(int errorLine, int lastGoodLine, int removedLines,
                                    const QList<QString> &sheetLines);

private:
    static void applyStyleSheetToApplication(const QString &sheet, bool fontChanged);
};
