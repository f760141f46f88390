#pragma once

#include <QMainWindow>
#include <QPointer>
#include <QProcess>
#include <QStringList>

#include <memory>

class QAction;
class ZelAction;
class ZelShortcut;

/// A virtual X server with a window manager, for keys as a user presses them.
class KeyServer
{
public:
    /// Starts the programs and lets Qt use them; false where one of them is missing.
    bool start();
    ~KeyServer();

    /// Presses keys by the codes of their places on the board, the first ones held.
    static void press(const QStringList &held, const QString &key);
    static void setLayout(const QString &layout);

private:
    QProcess server_;
    QProcess windowManager_;
};

/// A main window with two views; notes the names of what fires.
class KeyDesk
{
public:
    explicit KeyDesk(bool realKeys);
    ~KeyDesk();

    bool show();
    QMainWindow *window() { return window_.get(); }
    QWidget *left() { return left_; }
    QWidget *right() { return right_; }
    /// Gives the focus, in another window too.
    bool focus(QWidget *widget) const;
    /// Ends when the key was dealt with.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// The names of what fired since the last call.
    QStringList takeFired() { return std::exchange(fired_, {}); }
    void note(const QString &name) { fired_.append(name); }

    /// An action of the view that notes its text.
    ZelAction *action(const QString &id, const QString &text, const QKeySequence &key,
                      QWidget *view);
    ZelShortcut *shortcut(const QString &id, const QString &text, const QKeySequence &key,
                          QWidget *view);

private:
    bool realKeys_;
    std::unique_ptr<QMainWindow> window_;
    QWidget *left_;
    QWidget *right_;
    QStringList fired_;
};
