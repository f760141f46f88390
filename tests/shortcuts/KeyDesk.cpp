#include "KeyDesk.h"

#include <ZelWidgets/ZelAction>
#include <ZelWidgets/ZelShortcut>

#include <QAction>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMap>
#include <QStandardPaths>
#include <QtTest>

namespace {

constexpr int startTimeoutMs = 10'000;
const QString control = QStringLiteral("37");

/// Sees the key that is pressed last, which tells that those before were dealt with.
class LastKey : public QObject
{
public:
    LastKey() { qApp->installEventFilter(this); }
    bool isUp() const { return isUp_; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyRelease &&
            static_cast<QKeyEvent *>(event)->key() == Qt::Key_F12)
            isUp_ = true;
        return QObject::eventFilter(watched, event);
    }

private:
    bool isUp_ = false;
};

bool runs(const QString &program, const QStringList &arguments)
{
    return QProcess::execute(program, arguments) == 0;
}

/// The places of the keys on a board with 105 keys.
QString placeOf(Qt::Key key)
{
    static const QMap<Qt::Key, QString> places{
        {Qt::Key_Delete, QStringLiteral("119")}, {Qt::Key_C, QStringLiteral("54")},
        {Qt::Key_D, QStringLiteral("40")},       {Qt::Key_Z, QStringLiteral("52")},
        {Qt::Key_Y, QStringLiteral("29")},       {Qt::Key_Semicolon, QStringLiteral("47")},
    };
    return places.value(key);
}

} // namespace

bool KeyServer::start()
{
    for (const char *program : {"Xvfb", "openbox", "xdotool", "setxkbmap"}) {
        if (QStandardPaths::findExecutable(QLatin1String(program)).isEmpty())
            return false;
    }
    server_.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"), QStringLiteral("1280x900x24")});
    QByteArray display;
    while (!display.endsWith('\n') && server_.waitForReadyRead(startTimeoutMs))
        display += server_.readAllStandardOutput();
    if (!display.endsWith('\n'))
        return false;
    qputenv("DISPLAY", ":" + display.trimmed());
    qputenv("QT_QPA_PLATFORM", "xcb");
    setLayout(QStringLiteral("us"));
    // It tells when it manages windows.
    windowManager_.start(QStringLiteral("openbox"),
                         {QStringLiteral("--startup"), QStringLiteral("echo ready")});
    return windowManager_.waitForReadyRead(startTimeoutMs);
}

KeyServer::~KeyServer()
{
    for (QProcess *process : {&windowManager_, &server_}) {
        process->terminate();
        process->waitForFinished(startTimeoutMs);
    }
}

void KeyServer::setLayout(const QString &layout)
{
    if (!runs(QStringLiteral("setxkbmap"), {QStringLiteral("-layout"), layout}))
        qFatal("can't set the keyboard layout");
}

void KeyServer::press(const QStringList &held, const QString &key)
{
    QStringList arguments;
    for (const QString &one : held)
        arguments << QStringLiteral("keydown") << one;
    arguments << QStringLiteral("key") << key;
    for (const QString &one : held)
        arguments << QStringLiteral("keyup") << one;
    arguments << QStringLiteral("key") << QStringLiteral("96");
    const LastKey last;
    if (!runs(QStringLiteral("xdotool"), arguments))
        qFatal("can't press keys");
    if (!QTest::qWaitFor([&last] { return last.isUp(); }))
        qFatal("the keys did not come");
}

KeyDesk::KeyDesk(bool realKeys)
    : realKeys_(realKeys)
    , window_(std::make_unique<QMainWindow>())
    , left_(new QWidget)
    , right_(new QWidget)
{
    auto *central = new QWidget;
    auto *layout = new QHBoxLayout(central);
    for (QWidget *view : {left_, right_}) {
        view->setFocusPolicy(Qt::StrongFocus);
        layout->addWidget(view);
    }
    window_->setCentralWidget(central);
    window_->resize(400, 300);
}

KeyDesk::~KeyDesk() = default;

bool KeyDesk::show()
{
    window_->show();
    return focus(left_);
}

bool KeyDesk::focus(QWidget *widget) const
{
    widget->window()->activateWindow();
    widget->window()->raise();
    if (!QTest::qWaitForWindowActive(widget->window()))
        return false;
    widget->setFocus();
    return QTest::qWaitFor([widget] { return QApplication::focusWidget() == widget; });
}

void KeyDesk::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (realKeys_) {
        KeyServer::press(modifiers & Qt::ControlModifier ? QStringList{control} : QStringList(),
                         placeOf(key));
    } else {
        QWidget *target = QApplication::focusWidget();
        QTest::keyClick(target ? target : QApplication::activeWindow(), key, modifiers);
    }
}

ZelAction *KeyDesk::action(const QString &id, const QString &text, const QKeySequence &key,
                           QWidget *view)
{
    auto *action = new ZelAction(id, text, key, view);
    view->addAction(action->qAction());
    QObject::connect(action, qOverload<>(&ZelAction::triggered), view,
                     [this, text] { note(text); });
    return action;
}

ZelShortcut *KeyDesk::shortcut(const QString &id, const QString &text, const QKeySequence &key,
                               QWidget *view)
{
    auto *shortcut = new ZelShortcut(id, text, key, view);
    QObject::connect(shortcut, &QShortcut::activated, view, [this, text] { note(text); });
    return shortcut;
}
