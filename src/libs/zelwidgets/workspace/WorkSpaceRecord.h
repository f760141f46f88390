#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

/// Everything that a workspace holds, with its form as bytes.
struct WorkSpaceRecord
{
    /// The version that is written, and the first ones that hold docks and the mode of the bar.
    static constexpr qint32 currentVersion = 4;
    static constexpr qint32 firstVersionWithDocks = 3;
    static constexpr qint32 firstVersionWithToolBarMode = 4;

    /// Stands for a dock that is hidden.
    static QRect hiddenRect() { return QRect(QPoint(1, 1), QPoint(1, 1)); }

    QByteArray write() const;
    /// Damaged bytes give a record that isn't valid: what stands in front of the damage is in it,
    /// what stands behind is as in an empty record. If the damage lies in front of the docks,
    /// docking is enabled.
    static WorkSpaceRecord read(const QByteArray &bytes);

    /// True if each torn-out tab has its rectangle.
    bool hasMatchingTabs() const;
    /// True if rectangles can be given to torn-out tabs.
    bool hasMatchingTabScreens() const;
    /// True if rectangles can be given to docks.
    bool hasMatchingDocks() const;
    /// True if the indices of nested tab widgets can be used.
    bool hasMatchingTabWidgets() const;

    bool operator==(const WorkSpaceRecord &) const = default;

    bool isValid = true;
    qint32 version = currentVersion;

    QStringList tornOutNames;
    QStringList reservedNames;
    QList<QRect> tornOutRects;
    QStringList libraryTabOrder;
    QStringList projectTabOrder;
    qint32 libraryTabIndex = 0;
    qint32 projectTabIndex = 0;
    QByteArray mainWindowState;
    QList<qint32> reservedInts;

    QRect screenGeometry;
    QRect screenAvailable;
    double devicePixelRatio = 1;

    QStringList hiddenRibbonIds;
    QStringList tabWidgetNames;
    QList<qint32> tabWidgetIndices;
    QString sceneSubTabText;

    QRect mainWindowGeometry;
    bool maximized = false;

    QSize toolBarIconSize;
    bool toolBarVisible = true;
    qint16 toolButtonStyle = 0;
    bool enableDocking = true;
    QStringList visibleRibbonIds;

    QList<qint16> tornOutScreens;
    QStringList dockNames;
    QList<QRect> dockRects;
    QList<qint16> dockScreens;
    QList<QRect> screens;
    qint32 toolBarMode = 0;
};
