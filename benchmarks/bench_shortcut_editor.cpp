// Opening the editor of shortcuts with 3,000 ids and filtering it per key stroke, beside a plain
// tree widget with as many rows and columns.

#include "shortcuts/ZelShortcutEditorWidget.h"
#include "shortcuts/ZelShortcutHandler.h"

#include <ZelCore/ZelSettings>

#include <QApplication>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <benchmark/benchmark.h>

namespace {

constexpr int idCount = 3000;

/// Keys that repeat after some thousand, as users' do not.
QKeySequence keyOf(int i)
{
    const int second = i % 26;
    const int first = (i / 26) % 26;
    const Qt::KeyboardModifiers modifiers = (i / 676) % 2 ? Qt::ControlModifier : Qt::AltModifier;
    return {QKeyCombination(modifiers, Qt::Key(Qt::Key_A + first)),
            QKeyCombination(Qt::Key(Qt::Key_A + second))};
}

void registerIds()
{
    static bool done = false;
    if (std::exchange(done, true))
        return;
    ZelShortcutHandler::prepareInstance();
    const QStringList categories{QStringLiteral("cam"), QStringLiteral("edit#geo"),
                                 QStringLiteral("mat#graph"), QStringLiteral("ani")};
    for (int i = 0; i < idCount; ++i) {
        ZelShortcutHandler::instance()->registerKeyShortcut(
            QStringLiteral("%1.bench%2").arg(categories[i % 4]).arg(i),
            QStringLiteral("Operation number %1").arg(i), keyOf(i));
    }
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

void openEditor(benchmark::State &state)
{
    registerIds();
    for (auto _ : state) {
        ZelShortcutEditorWidget editor;
        editor.resize(900, 700);
        editor.show();
        settle();
        editor.grab();
        state.PauseTiming();
        editor.hide();
        state.ResumeTiming();
    }
}
BENCHMARK(openEditor)->Unit(benchmark::kMillisecond)->MinTime(2);

void fillPlain(QTreeWidget &tree)
{
    tree.setColumnCount(4);
    tree.setUniformRowHeights(true);
    for (int i = 0; i < idCount; ++i) {
        new QTreeWidgetItem(&tree, {QStringLiteral("Operation number %1").arg(i),
                                    keyOf(i).toString(), QString(), keyOf(i).toString()});
    }
}

void openPlainTree(benchmark::State &state)
{
    for (auto _ : state) {
        QTreeWidget tree;
        tree.resize(900, 700);
        fillPlain(tree);
        tree.show();
        settle();
        tree.grab();
    }
}
BENCHMARK(openPlainTree)->Unit(benchmark::kMillisecond)->MinTime(2);

/// A text typed and taken back, letter by letter; the time of one letter.
void filterPerKeyStroke(benchmark::State &state)
{
    registerIds();
    ZelShortcutEditorWidget editor;
    editor.resize(900, 700);
    editor.show();
    settle();
    auto *search = editor.findChild<QLineEdit *>(QStringLiteral("ShortcutSearch"));
    const QString text = QStringLiteral("number 29");
    int length = 0;
    int step = 1;
    for (auto _ : state) {
        length += step;
        if (length == text.size() || length == 0)
            step = -step;
        search->setText(text.left(length));
        settle();
        editor.grab();
    }
}
BENCHMARK(filterPerKeyStroke)->Unit(benchmark::kMillisecond)->MinTime(2);

/// The costliest letter: all rows but a few go, and come back.
void filterWorstKeyStroke(benchmark::State &state)
{
    registerIds();
    ZelShortcutEditorWidget editor;
    editor.resize(900, 700);
    editor.show();
    settle();
    auto *search = editor.findChild<QLineEdit *>(QStringLiteral("ShortcutSearch"));
    bool narrow = false;
    for (auto _ : state) {
        narrow = !narrow;
        search->setText(narrow ? QStringLiteral("2999") : QString());
        settle();
        editor.grab();
    }
}
BENCHMARK(filterWorstKeyStroke)->Unit(benchmark::kMillisecond)->MinTime(2);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    ZelSettings::setStorePath(folder.filePath(QStringLiteral("settings.json")));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    ZelShortcutHandler::destroy();
    return 0;
}
