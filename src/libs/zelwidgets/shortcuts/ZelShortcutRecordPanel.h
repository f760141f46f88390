#pragma once

#include "ZelMouseAction.h"
#include "ZelShortcutVerdict.h"

#include <QFrame>

class QLabel;
class QPushButton;
class ZelKeyRecorder;
class ZelMouseRecorder;

/// The part of an editor of shortcuts that is about one of them: what can be done with it, and the
/// recording of a new binding with its verdict.
class ZelShortcutRecordPanel : public QFrame
{
    Q_OBJECT

public:
    explicit ZelShortcutRecordPanel(QWidget *parent = nullptr);

    bool isRecording() const;
    /// The shortcut that the panel is about; ends a recording. An empty name stands for none.
    void setShortcut(const QString &name, const QString &publicText, bool isDefault);
    void recordKeys();
    void recordGesture(ZelMouseAction::Category category, const ZelMouseShortcut &current);
    void setVerdict(const ZelShortcutVerdict &verdict);
    /// Portable keys or an exported gesture; empty as long as nothing complete is recorded.
    QString recordedText() const;

Q_SIGNALS:
    void recordRequested();
    void resetRequested();
    void clearRequested();
    /// A new binding; who owns the panel answers with setVerdict().
    void recorded();
    /// The user takes the binding, away from others if told so.
    void accepted(bool takesAway);
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QWidget *createIdlePage();
    QWidget *createRecordPage();
    QPushButton *addButton(const QString &text, const char *name);
    void beginRecording(QWidget *recorder);
    void endRecording();
    QPushButton *likelyAnswer(bool isEmpty) const;
    void updateButtons();

    QLabel *name_;
    QPushButton *record_;
    QPushButton *reset_;
    QPushButton *clear_;
    QLabel *title_;
    QLabel *verdict_;
    ZelKeyRecorder *keys_;
    ZelMouseRecorder *gesture_;
    QPushButton *reassign_;
    QPushButton *keep_;
    QPushButton *cancel_;
    QWidget *idlePage_;
    QWidget *recordPage_;
    QString shortcutName_;
    ZelShortcutVerdict::Kind kind_ = ZelShortcutVerdict::Free;
};
