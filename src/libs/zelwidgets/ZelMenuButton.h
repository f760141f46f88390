#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QPointer>
#include <QPushButton>
#include <QVariant>

class QAction;

/// A push button with a menu from which the user picks one entry. It shows either a fixed header or
/// the text of the current entry.
///
///     auto *button = new ZelMenuButton(panel);
///     button->addAction(tr("Wood"), QStringLiteral("wood"));
///     button->addAction(tr("Glass"), QStringLiteral("glass"));
///     button->showSelection();
///     connect(button, &ZelMenuButton::activated, this, &Panel::setMaterial);
///
/// Indexes count all entries of the menu from 0, separators and hidden entries too. An index that
/// there isn't gives no action, an invalid value or an empty text; one that is asked for and not
/// found is -1. Actions are never deleted by the button.
class ZELWIDGETS_EXPORT ZelMenuButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ZelMenuButton(QWidget *parent = nullptr);

    int count() const;
    QAction *getActionByData(const QVariant &data) const;
    QAction *getActionByIndex(int index) const;
    QAction *getCurrentAction() const;
    QVariant getCurrentData() const;
    int getCurrentIndex() const;
    QString getCurrentText() const;
    QVariant getDataByIndex(int index) const;
    int getIndexByData(const QVariant &data) const;
    int getIndexByText(const QString &text) const;
    QString getTextByIndex(int index) const;

    /// Adds an entry; the first one becomes the current one. The text of the button doesn't change.
    /// New actions belong to the parent of the button, or to the button if it has none.
    void addAction(QAction *action);
    QAction *addAction(const QString &text);
    QAction *addAction(const QString &text, const QVariant &data);
    /// Adds the action with the data put into it.
    void addActionWithData(QAction *action, const QVariant &data);
    QAction *addSeparator();
    /// Takes all entries off the menu, which keeps the actions alive; none is current then.
    void clear();
    void hideActionByIndex(int index);
    /// Takes an entry off the menu. If it was the current one, none is.
    void removeActionByData(const QVariant &data);
    void removeActionByIndex(int index);
    /// Makes the entry the current one, without a signal. False, and nothing changes, if there is
    /// no such entry.
    bool setCurrentIndex(int index);
    /// Makes the first entry with the text the current one; nothing changes if there is none.
    void setCurrentText(const QString &text);
    /// The text of the button while it doesn't show the selection.
    void setHeader(const QString &header);
    void showHeader();
    void showSelection();

public Q_SLOTS:
    /// Makes the action the current one, as a choice of the user does, and emits activated(),
    /// triggered() and textActivated(), in this order. Null is ignored.
    void trigger(QAction *action);

Q_SIGNALS:
    void triggered(QAction *action);
    void activated(int index);
    void textActivated(QString text);

protected:
    /// Alt and the down key open the menu, as in a combo box.
    void keyPressEvent(QKeyEvent *event) override;

private:
    void take(QAction *action);
    void updateText();

    QMenu *menu_;
    QString header_;
    bool showSelection_ = false;
    QPointer<QAction> current_;
};
