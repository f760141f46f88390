#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QFlags>
#include <QString>
#include <QWidget>

#include <memory>

class QMimeData;
class ZelFileNameDisplayPrivate;

/// Shows the name of a file with buttons for what can be done about it. Files and pictures can be
/// dropped on it. It changes nothing by itself: its owner calls setFilename() on the signals.
///
///     auto *display = new ZelFileNameDisplay(ZelFileNameDisplay::Open |
///     ZelFileNameDisplay::Remove); display->setDropPattern(QStringLiteral("*.png;*.jpg"));
///     connect(display, &ZelFileNameDisplay::filenameDropped, this, &Panel::load);
class ZELWIDGETS_EXPORT ZelFileNameDisplay : public QWidget
{
    Q_OBJECT

public:
    enum Button { Open = 1, Refresh = 2, Remove = 4, Replace = 8 };
    Q_DECLARE_FLAGS(Buttons, Button)
    Q_FLAG(Buttons)

    explicit ZelFileNameDisplay(Buttons buttons);
    ZelFileNameDisplay(const QString &filename, Buttons buttons);
    ~ZelFileNameDisplay() override;

    /// The name as it was set, with its path.
    QString filename() const;
    /// The absolute path of the file; empty without a file name.
    QString path() const;

    /// Shows the name part of the file; its tool tip is the absolute path if the file exists.
    void setFilename(const QString &filename);
    void clearFilename();
    /// Puts a widget behind the buttons; it belongs to the display from then on.
    void addWidget(QWidget *widget);
    /// Which files may be dropped, as "*.png;*.jpg"; empty lets every file pass.
    void setDropPattern(const QString &pattern);
    using QWidget::setEnabled;
    /// Enables the name field with its open button and drops, and the buttons that act on the file
    /// shown, each for itself.
    void setEnabled(bool choosing, bool fileButtons);
    void setOpenToolTip(const QString &toolTip);
    void setRefreshToolTip(const QString &toolTip);
    void setRemoveToolTip(const QString &toolTip);

Q_SIGNALS:
    void openClicked();
    void refreshClicked();
    void removeClicked();
    void replaceClicked();
    void filenameDropped(QString filename);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void makeActions();
    void makeLayout(Buttons buttons);
    void showContextMenu(const QPoint &position);
    static QString filenameFromMime(const QMimeData *data);

    std::unique_ptr<ZelFileNameDisplayPrivate> d_;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZelFileNameDisplay::Buttons)
