#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

#include <memory>

class QTreeWidget;
class ZelShortcutEditorWidgetPrivate;

/// The page on which users see all shortcuts and gestures of the registry and change them.
///
///     auto *editor = new ZelShortcutEditorWidget(dialog);
///     connect(editor, &ZelShortcutEditorWidget::applied, dialog, &QDialog::accept);
///     connect(editor, &ZelShortcutEditorWidget::cancelled, dialog, &QDialog::reject);
///
/// Nothing is in force before it is applied, but for the preset of the camera, which can be tried
/// out meanwhile. What wasn't applied goes with the editor and leaves no traces.
class ZELWIDGETS_EXPORT ZelShortcutEditorWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ZelShortcutEditorWidget(QWidget *parent = nullptr);
    ~ZelShortcutEditorWidget() override;

    /// The rows, of ZelShortcutTreeItem; the editor keeps them.
    QTreeWidget *tree() const;
    bool hasChanges() const;
    /// What users read for ViewCtrl::ViewMode, from Mode0 on; further modes keep their numbers.
    void setViewModeNames(const QStringList &names);

    /// The shortcuts as the editor shows them, as ZelShortcutHandler::exportShortcuts().
    QString exportText() const;
    /// Shows the shortcuts of a document; false if it doesn't look like one of shortcuts.
    bool importText(const QString &json);
    /// Write and read files; both tell the user if that fails, and return false.
    bool exportFile(const QString &path);
    bool importFile(const QString &path);

public Q_SLOTS:
    /// Puts the changes in force and stores them.
    void apply();
    /// Goes back to what is in force.
    void cancel();
    /// Reads the registry anew; the same as cancel() without its signal.
    void reload();
    void resetAll();
    void clearAll();
    /// Begins to record a new binding for the row that is current.
    void record();

Q_SIGNALS:
    void applied();
    void cancelled();
    /// Whenever hasChanges() may have changed.
    void edited();

private:
    friend class ZelShortcutEditorWidgetPrivate;
    std::unique_ptr<ZelShortcutEditorWidgetPrivate> d_;
};
