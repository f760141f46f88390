#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QSplitter>
#include <QString>

/// A splitter whose sizes stay as the user left them, in the settings group "ui".
class ZELWIDGETS_EXPORT ZelPersistentSplitter : public QSplitter
{
    Q_OBJECT

public:
    ZelPersistentSplitter(QString const &settingsKey, Qt::Orientation orientation, QWidget *parent);
    ~ZelPersistentSplitter() override;

    /// The sizes in what was stored, each between 0 and what a widget can have; nothing if there is
    /// none, or if all are 0.
    static QList<int> sizesFrom(const QVariant &stored);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void storeSizes() const;

    QString settingsKey_;
    bool hasBeenShown_ = false;
};
