#include "TestCase.h"

#include <ZelCore/ZelSettings>

#include <QFile>

void TestCase::init()
{
    folder_ = std::make_unique<QTemporaryDir>();
    QVERIFY(folder_->isValid());
    ZelSettings::setStorePath(settingsFile());
    spy_ = std::make_unique<MessageSpy>();
}

void TestCase::cleanup()
{
    const QString faults = spy_ ? spy_->faults() : QString();
    spy_.reset();
    // What is still pending would bring the folder back.
    ZelSettings::save();
    folder_.reset();
    if (!QTest::currentTestFailed())
        QVERIFY2(faults.isEmpty(), qPrintable(faults));
}

QString TestCase::settingsFile() const
{
    return folder_->filePath(QStringLiteral("settings.json"));
}

QString TestCase::writeFile(const QString &name, const QByteArray &content) const
{
    const QString path = folder_->filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("can't write the test file %s", qPrintable(path));
    return path;
}
