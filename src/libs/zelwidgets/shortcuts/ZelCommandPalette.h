#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QFrame>

#include <memory>

class QLineEdit;
class QListView;
class ZelCommandPalettePrivate;

/// A popup that finds commands by a few letters of their names and runs them: every live action and
/// shortcut of ZelShortcutHandler, with its category and key. Those that are off are shown, and
/// can't be run.
///
///     auto *palette = new ZelCommandPalette(window);
///     auto *open = new ZelAction(QStringLiteral("if.fCommands"), tr("Command Palette"),
///                                Qt::CTRL | Qt::SHIFT | Qt::Key_P, window);
///     connect(open, qOverload<>(&ZelAction::triggered), palette, &ZelCommandPalette::open);
///     window->addAction(open->qAction());
///
/// The arrow keys choose, Return runs, Escape closes. The focus goes back to where it was before a
/// command runs, so that the command means what it means there.
class ZELWIDGETS_EXPORT ZelCommandPalette : public QFrame
{
    Q_OBJECT

public:
    explicit ZelCommandPalette(QWidget *parent = nullptr);
    ~ZelCommandPalette() override;

    QLineEdit *lineEdit() const;
    /// The commands that fit, the best first.
    QListView *listView() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// Shows all commands of now at the top of the parent's window, or of the screen.
    void open();
    /// Runs the chosen command and closes; nothing happens if there is none or if it is off.
    void runCurrent();

Q_SIGNALS:
    /// Before the command runs.
    void aboutToRun(const QString &id);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    std::unique_ptr<ZelCommandPalettePrivate> d_;
};
