#include <ZelWidgets/ZelWorkSpaceReport>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

namespace {

QJsonObject reportOf(const QString &path)
{
    QFile file(path);
    QJsonObject report{
        {QStringLiteral("problems"), QJsonArray{QStringLiteral("The file can't be read")}}};
    if (file.open(QIODevice::ReadOnly))
        report = ZelWorkSpaceReport::describe(path, file.readAll());
    report.insert(QLatin1String("file"), path);
    return report;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("zel-workspace-lint"));
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Checks files of workspaces and prints what is in them as JSON: .zelsw is a "
                       "file of exchanged workspaces, .json a bundle of factory workspaces, "
                       "anything else a stored workspace. The exit code is 0 if all are sound, "
                       "else 1."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("files"), QStringLiteral("The files."),
                                 QStringLiteral("files..."));
    parser.process(application);
    if (parser.positionalArguments().isEmpty())
        parser.showHelp(1);

    QJsonArray reports;
    bool areGood = true;
    const QStringList paths = parser.positionalArguments();
    for (const QString &path : paths) {
        const QJsonObject report = reportOf(path);
        areGood = areGood && ZelWorkSpaceReport::isGood(report);
        reports.append(report);
    }
    std::fputs(QJsonDocument(reports).toJson().constData(), stdout);
    return areGood ? 0 : 1;
}
