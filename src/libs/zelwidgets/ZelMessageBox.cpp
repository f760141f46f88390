#include "ZelMessageBox.h"

#include "ZelDialogTextCopier.h"

#include <QCheckBox>
#include <QDebug>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

ZelMessageBox::Mode ZelMessageBox::mode = ZelMessageBox::Show;
QMap<ZelMessageBox::Type, QList<QString>> ZelMessageBox::msgs;

struct ZelMessageBox::Message
{
    QMessageBox::Icon icon;
    QWidget *parent;
    QString title;
    QString text;
    QMessageBox::StandardButtons buttons;
    QMessageBox::StandardButton defaultButton;
    int timeout;
    QString detailedText;
};

namespace {

constexpr int second = 1000;

/// Clicks the default button of a message box after a while, and shows in its text the seconds
/// that are left.
class Countdown
{
public:
    Countdown(QMessageBox *box, int timeout)
        : box_(box)
        , button_(box->defaultButton())
        , text_(button_->text())
        , timeout_(timeout)
        , end_(new QTimer(box))
        , tick_(new QTimer(box))
    {
        reserveWidth();
        end_->setInterval(timeout);
        QObject::connect(end_, &QTimer::timeout, button_, &QPushButton::click);
        tick_->setInterval(second);
        QObject::connect(tick_, &QTimer::timeout, box, [this] { tick(); });
        end_->start();
        tick_->start();
    }

    void stop()
    {
        end_->stop();
        tick_->stop();
    }

private:
    void tick()
    {
        if (!box_->isVisible())
            return;
        ++count_;
        const int left = timeout_ - second * count_;
        button_->setText(textWith(left > 0 ? left / second : left));
    }

    QString textWith(int left) const
    {
        return ZelMessageBox::tr("%1 (%2s)").arg(text_, QString::number(left));
    }

    /// A message box does not grow once it is shown.
    void reserveWidth()
    {
        box_->ensurePolished();
        button_->ensurePolished();
        button_->setText(textWith(std::max(timeout_ / second, 1)));
        button_->setMinimumWidth(std::max(button_->minimumWidth(), button_->sizeHint().width()));
        button_->setText(text_);
    }

    QMessageBox *box_;
    QPushButton *button_;
    QString text_;
    int timeout_;
    int count_ = 0;
    QTimer *end_;
    QTimer *tick_;
};

} // namespace

QMessageBox::StandardButton ZelMessageBox::information(QWidget *parent, const QString &title,
                                                       const QString &text,
                                                       QMessageBox::StandardButtons buttons,
                                                       QMessageBox::StandardButton defaultButton,
                                                       int timeout, const QString &detailedText)
{
    return handle({QMessageBox::Information, parent, title, text, buttons, defaultButton, timeout,
                   detailedText});
}

QMessageBox::StandardButton ZelMessageBox::warning(QWidget *parent, const QString &title,
                                                   const QString &text,
                                                   QMessageBox::StandardButtons buttons,
                                                   QMessageBox::StandardButton defaultButton,
                                                   int timeout, const QString &detailedText)
{
    return handle(
        {QMessageBox::Warning, parent, title, text, buttons, defaultButton, timeout, detailedText});
}

QMessageBox::StandardButton ZelMessageBox::critical(QWidget *parent, const QString &title,
                                                    const QString &text,
                                                    QMessageBox::StandardButtons buttons,
                                                    QMessageBox::StandardButton defaultButton,
                                                    int timeout, const QString &detailedText)
{
    return handle({QMessageBox::Critical, parent, title, text, buttons, defaultButton, timeout,
                   detailedText});
}

QMessageBox::StandardButton ZelMessageBox::question(QWidget *parent, const QString &title,
                                                    const QString &text,
                                                    QMessageBox::StandardButtons buttons,
                                                    QMessageBox::StandardButton defaultButton,
                                                    int timeout, const QString &detailedText)
{
    return handle({QMessageBox::Question, parent, title, text, buttons, defaultButton, timeout,
                   detailedText});
}

QMessageBox::StandardButton ZelMessageBox::handle(const Message &message)
{
    if (mode == Show)
        return exec(message);
    if (mode == NoGui)
        record(message);
    return message.defaultButton;
}

void ZelMessageBox::record(const Message &message)
{
    Type type = Information;
    if (message.icon == QMessageBox::Warning) {
        type = Warning;
        qWarning() << message.title << message.text;
    } else if (message.icon == QMessageBox::Critical) {
        type = Critical;
        qCritical() << message.title << message.text;
    } else if (message.icon == QMessageBox::Question) {
        qDebug() << message.title << message.text;
    } else {
        qInfo() << message.title << message.text;
    }
    msgs[type].append(message.text);
}

QMessageBox::StandardButton ZelMessageBox::exec(const Message &message)
{
    // The parent may die while the box is shown, and takes the box with it.
    const QPointer<QMessageBox> box =
        new QMessageBox(message.icon, message.title, message.text, message.buttons, message.parent);
    box->setWindowFlags(box->windowFlags() & ~Qt::MSWindowsFixedSizeDialogHint);
    box->setDefaultButton(message.defaultButton);
    if (!message.detailedText.isEmpty())
        box->setDetailedText(message.detailedText);
    ensureTitleWidth(box);
    new ZelDialogTextCopier(box);

    std::unique_ptr<Countdown> countdown;
    if (box->defaultButton() && message.timeout > 0 &&
        message.defaultButton != QMessageBox::NoButton)
        countdown = std::make_unique<Countdown>(box, message.timeout);
    const int result = box->exec();
    if (!box)
        return QMessageBox::NoButton;
    if (countdown)
        countdown->stop();
    delete box;
    return QMessageBox::StandardButton(result);
}

void ZelMessageBox::ensureTitleWidth(QMessageBox *box)
{
    auto *title = new QCheckBox(box->windowTitle(), box);
    title->setFixedHeight(0);
    title->setStyleSheet(QStringLiteral("QCheckBox { font-weight: bold; }"));
    QSizePolicy policy = title->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    title->setSizePolicy(policy);
    // Neither the Tab key nor a screen reader comes upon it.
    title->setFocusPolicy(Qt::NoFocus);
    title->hide();
    box->setCheckBox(title);
}

QList<QString> ZelMessageBox::getMessages(Types types)
{
    QList<QString> texts;
    for (const Type type : {Information, Warning, Critical}) {
        if (types.testFlag(type))
            texts += msgs.value(type);
    }
    msgs.clear();
    return texts;
}

ZelMessageBox::Mode ZelMessageBox::getMode()
{
    return mode;
}

void ZelMessageBox::setMode(Mode newMode)
{
    mode = newMode;
}

bool ZelMessageBox::noGui()
{
    return mode == NoGui;
}

ZelScopedMessageBoxMode::ZelScopedMessageBoxMode(ZelMessageBox::Mode mode)
    : previous_(ZelMessageBox::getMode())
{
    ZelMessageBox::setMode(mode);
}

ZelScopedMessageBoxMode::~ZelScopedMessageBoxMode()
{
    ZelMessageBox::setMode(previous_);
}
