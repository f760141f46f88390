#pragma once

#include "MessageSpy.h"

#include <QApplication>
#include <QObject>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// Base of the test classes: every test function starts with an empty settings store of its own
/// and fails on any warning that it did not announce.
///
/// A subclass that has an init() or cleanup() of its own calls the base's.
class TestCase : public QObject
{
    Q_OBJECT

protected:
    MessageSpy &messages() { return *spy_; }
    /// A folder that goes when the test function ends.
    QString folder() const { return folder_->path(); }
    /// Writes a file into folder() and gives its path.
    QString writeFile(const QString &name, const QByteArray &content) const;
    /// Where the settings of this test function are stored.
    QString settingsFile() const;

protected Q_SLOTS:
    void init();
    void cleanup();

private:
    std::unique_ptr<MessageSpy> spy_;
    std::unique_ptr<QTemporaryDir> folder_;
};

/// Runs the tests of one class in a widget application; the platform and the locale come from the
/// environment that the build gives to tests.
template <typename Test>
int runTests(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("zeltest"));
    Test test;
    return QTest::qExec(&test, argc, argv);
}

#define ZEL_TEST_MAIN(Test)                                                                        \
    int main(int argc, char **argv)                                                                \
    {                                                                                              \
        return runTests<Test>(argc, argv);                                                         \
    }
