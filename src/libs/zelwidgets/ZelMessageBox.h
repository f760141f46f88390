#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QMap>
#include <QMessageBox>
#include <QObject>
#include <QStringList>

/// Message boxes that honour a mode of the whole process, so that batch runs get no dialogs.
///
///     if (ZelMessageBox::question(this, tr("Delete"), tr("Delete the material?"),
///                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
///         == QMessageBox::Yes)
///         ...
///
/// To be called on the GUI thread only; so are mode and messages. In every mode but Show a call
/// never blocks and gives the default button: choose it with that in mind.
class ZELWIDGETS_EXPORT ZelMessageBox : public QObject
{
    Q_OBJECT

public:
    enum Mode : int {
        Show = 0,  ///< Message boxes are shown.
        NoGui = 1, ///< Messages go to the log and are collected for getMessages().
        Silent = 2 ///< Nothing happens; so with any other value.
    };
    Q_ENUM(Mode)

    enum Type : int {
        Information = 1, ///< Information and questions.
        Warning = 2,
        Critical = 4
    };
    Q_DECLARE_FLAGS(Types, Type)
    Q_FLAG(Types)

    ZelMessageBox() = delete;

    /// Show a message until the user answers, and return the button; NoButton if the box was
    /// closed without one, or died with its parent. If the default button is one of the buttons
    /// and the time-out (in milliseconds) is above 0, the default button counts the seconds down
    /// and is clicked at the end. Ctrl+C copies the texts.
    static QMessageBox::StandardButton
    information(QWidget *parent, const QString &title, const QString &text,
                QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                QMessageBox::StandardButton defaultButton = QMessageBox::NoButton, int timeout = 0,
                const QString &detailedText = QString());
    static QMessageBox::StandardButton
    warning(QWidget *parent, const QString &title, const QString &text,
            QMessageBox::StandardButtons buttons = QMessageBox::Ok,
            QMessageBox::StandardButton defaultButton = QMessageBox::NoButton, int timeout = 0,
            const QString &detailedText = QString());
    static QMessageBox::StandardButton
    critical(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons = QMessageBox::Ok,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton, int timeout = 0,
             const QString &detailedText = QString());
    static QMessageBox::StandardButton
    question(QWidget *parent, const QString &title, const QString &text,
             QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No,
             QMessageBox::StandardButton defaultButton = QMessageBox::NoButton, int timeout = 0,
             const QString &detailedText = QString());

    /// The collected texts of the types, in the order of the types. All that was collected is
    /// dropped, also that of other types.
    static QList<QString> getMessages(Types types);
    static Mode getMode();
    /// See ZelScopedMessageBoxMode for a change that ends with a scope.
    static void setMode(Mode mode);
    static bool noGui();

private:
    struct Message;
    static QMessageBox::StandardButton handle(const Message &message);
    static QMessageBox::StandardButton exec(const Message &message);
    static void ensureTitleWidth(QMessageBox *box);
    static void record(const Message &message);

    static Mode mode;
    static QMap<Type, QList<QString>> msgs;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZelMessageBox::Types)

/// Sets a mode for the life of the object, and then the one again that was in force before.
class ZELWIDGETS_EXPORT ZelScopedMessageBoxMode
{
public:
    explicit ZelScopedMessageBoxMode(ZelMessageBox::Mode mode);
    ~ZelScopedMessageBoxMode();
    ZelScopedMessageBoxMode(const ZelScopedMessageBoxMode &) = delete;
    ZelScopedMessageBoxMode &operator=(const ZelScopedMessageBoxMode &) = delete;

private:
    ZelMessageBox::Mode previous_;
};
