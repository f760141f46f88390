#pragma once

#include <ZelCore/ZelSettings>

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

/// Runs the benchmarks of a program in an application without a screen and with settings of its
/// own; what they need is set up in the application, before.
template <typename Application, typename SetUp>
int runBenchmarks(int argc, char **argv, SetUp setUp)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const Application application(argc, argv);
    const QTemporaryDir folder;
    ZelSettings::setStorePath(folder.filePath(QStringLiteral("settings.json")));
    setUp();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

template <typename Application>
int runBenchmarks(int argc, char **argv)
{
    return runBenchmarks<Application>(argc, argv, [] {});
}
