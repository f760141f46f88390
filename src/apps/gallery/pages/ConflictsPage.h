#pragma once

#include "GalleryPage.h"

class QKeySequence;
class QLabel;
class QPushButton;
class QTreeWidget;
class ZelAction;

/// Two views and a floating tool window that share keys, and a table that tells for each press who
/// was meant and why.
class ConflictsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ConflictsPage(QWidget *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void addViews();
    void addTable();
    QWidget *createView(const QString &name);
    void addToolWindow();
    void addAction(QWidget *view, const QString &id, const QString &text, const QKeySequence &key);
    void showStandings(const QKeySequence &key);
    void switchActions(bool on);

    QTreeWidget *table_ = nullptr;
    QLabel *pressed_ = nullptr;
    QPushButton *toolButton_ = nullptr;
    QWidget *toolWindow_ = nullptr;
    QList<ZelAction *> actions_;
};
