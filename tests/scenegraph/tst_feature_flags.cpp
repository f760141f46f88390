#include <ZelDeliveryManager/ZelFeatureFlags>

#include <QtTest>

using orv::cdm::isFeatureEnabled;
using orv::cdm::setFeatureOverride;

class FeatureFlagsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEnvironmentBeatsTheDefault_data();
    void theEnvironmentBeatsTheDefault();
    void anOverrideBeatsTheEnvironment();
};

void FeatureFlagsTest::theEnvironmentBeatsTheDefault_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("defaultValue");
    QTest::addColumn<bool>("expected");
    for (const bool defaultValue : {false, true}) {
        const char *kind = defaultValue ? "on" : "off";
        for (const char *text : {"1", "on", "True", " YES "})
            QTest::addRow("'%s' over %s", text, kind) << QByteArray(text) << defaultValue << true;
        for (const char *text : {"0", "off", "False", "no"})
            QTest::addRow("'%s' over %s", text, kind) << QByteArray(text) << defaultValue << false;
        for (const char *text : {"", "2", "maybe"})
            QTest::addRow("'%s' over %s", text, kind)
                << QByteArray(text) << defaultValue << defaultValue;
    }
}

void FeatureFlagsTest::theEnvironmentBeatsTheDefault()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, defaultValue);
    QFETCH(bool, expected);
    qputenv("ZEL_FEATURE_MULTI_COLORS_2", text);
    QCOMPARE(isFeatureEnabled("multi-colors.2", defaultValue), expected);
    qunsetenv("ZEL_FEATURE_MULTI_COLORS_2");
    QCOMPARE(isFeatureEnabled("multi-colors.2", defaultValue), defaultValue);
}

void FeatureFlagsTest::anOverrideBeatsTheEnvironment()
{
    qputenv("ZEL_FEATURE_MULTI_COLORS", "1");
    setFeatureOverride("multi_colors", false);
    QVERIFY(!isFeatureEnabled("multi_colors", true));
    QVERIFY(isFeatureEnabled("MULTI_COLORS", false)); // overrides tell capitals apart
    setFeatureOverride("multi_colors", std::nullopt);
    QVERIFY(isFeatureEnabled("multi_colors", false));
    qunsetenv("ZEL_FEATURE_MULTI_COLORS");
}

QTEST_GUILESS_MAIN(FeatureFlagsTest)
#include "tst_feature_flags.moc"
