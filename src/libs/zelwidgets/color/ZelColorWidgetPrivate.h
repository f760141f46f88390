#pragma once

#include <ZelCore/ZelColor>
#include <ZelSceneGraph/Color>

#include <QBrush>
#include <QIcon>
#include <QPixmap>
#include <QPoint>
#include <QPointer>
#include <QString>

#include <optional>

class ILibrary;
class ZelColorDialog;

class ZelColorWidgetPrivate
{
public:
    /// The feature "multi_colors".
    static bool areMultiColorsEnabled();
    /// What a list of sub-colours wears.
    const QIcon &overlay();

    zelsg::Color color;
    ZelColor active;
    QPointer<ZelColorDialog> dialog;
    float alpha = 1.0f;
    /// When the dialog was opened.
    float firstAlpha = 1.0f;
    bool hasAlpha = false;
    bool showModal = false;
    bool showKelvin = false;
    bool includeSaveButton = false;
    bool makeMultiColorEnabled = false;
    bool opensDialog = false;
    QString title;
    ILibrary *library = nullptr;
    QBrush fillBrush;
    /// What the brush was made for.
    qreal fillRatio = 0;
    QPixmap picture;
    QString label;
    /// Until the owner sets a tool tip, it is the name of the colour.
    bool isNamedByColor = true;
    /// Where a drag may have begun.
    std::optional<QPoint> pressed;

private:
    std::optional<QIcon> overlay_;
};
