#pragma once

#include <QDebug>
#include <QString>
#include <QWidget>

class QVBoxLayout;

/// One page of the gallery: sections with live widgets, whose signals go to the log panel.
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget *parent = nullptr);

    /// Called after a new theme or font size is in force, for what the page shows of the look:
    /// widgets are not sent a style event for every switch.
    virtual void lookChanged() {}
    /// Lets the mouse wheel scroll the page past controls that don't have the focus, instead of
    /// changing their values; with Control it changes them.
    void leaveWheelToScrolling();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A line for the log panel.
    void logged(const QString &entry);

protected:
    /// A titled group with a vertical layout, below the sections so far.
    QVBoxLayout *addSection(const QString &title, const QString &explanation = QString());
    /// Keeps the sections together at the top; pages whose last section grows leave it out.
    void addStretch();
    void log(const QString &entry) { Q_EMIT logged(entry); }

    /// Logs each emission of a signal with its arguments.
    template <typename Sender, typename Base, typename... Args>
    void watch(Sender *sender, void (Base::*signal)(Args...), const QString &name)
    {
        connect(sender, signal, this, [this, sender, name](Args... args) {
            QStringList texts;
            (texts.append(asText(args)), ...);
            log(describe(sender) + QStringLiteral(": ") + name + u'(' +
                texts.join(QStringLiteral(", ")) + u')');
        });
    }

private:
    template <typename Value>
    static QString asText(const Value &value)
    {
        QString text;
        QDebug(&text).nospace() << value;
        return text;
    }
    static QString describe(const QObject *object);

    QVBoxLayout *layout_;
};
