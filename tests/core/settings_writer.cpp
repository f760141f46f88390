// A process that writes settings; ZEL_SETTINGS names the file. What it does is the first argument:
//   end          stores one value and ends without a save
//   keys ID N    stores N keys of its own, each with a save
//   forever      stores generation after generation and tells each on its output

#include <ZelCore/ZelSettings>

#include <QCoreApplication>

#include <cstdio>

namespace {

void writeForever()
{
    ZelSettings settings(QStringLiteral("load"));
    for (int generation = 1;; ++generation) {
        settings.setValue(QStringLiteral("before"), generation);
        settings.setValue(QStringLiteral("payload"), QByteArray(200000, char(generation)));
        settings.setValue(QStringLiteral("zAfter"), generation);
        ZelSettings::save();
        std::printf("%d\n", generation);
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString task = arguments.value(1);
    if (task == QLatin1String("end")) {
        ZelSettings(QStringLiteral("ended")).setValue(QStringLiteral("value"), 7);
        return 0;
    }
    if (task == QLatin1String("keys")) {
        ZelSettings settings(arguments.value(2));
        for (int i = 0; i < arguments.value(3).toInt(); ++i) {
            settings.setValue(QStringLiteral("key%1").arg(i), i);
            ZelSettings::save();
        }
        return 0;
    }
    if (task == QLatin1String("forever"))
        writeForever();
    return 2;
}
