#pragma once

#include "ThemedSvg.h"

#include <QIconEngine>
#include <QSizeF>

#include <memory>

class IconColorTheme;

/// Paints one themed SVG document: at each paint it rewrites the document by the colours in force
/// and renders it, so that a theme switch needs no notice. Nothing of a picture is kept.
class StyleSvgIconEngine : public QIconEngine
{
public:
    /// An engine without a document: it paints nothing and its icon is null.
    StyleSvgIconEngine() = default;
    /// Reads the file; ".svg" is appended to a name that ends neither in ".svg" nor in ".zelsvg".
    explicit StyleSvgIconEngine(const QString &fileName);
    ~StyleSvgIconEngine() override = default;

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    /// The largest size of the document's aspect ratio that fits.
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;
    /// The stored file name.
    QString iconName() override;
    void virtual_hook(int id, void *data) override;

    const QString &fileName() const { return fileName_; }
    /// From now on the colours are those of this mode and state, whatever a painter asks for.
    void pin(QIcon::Mode mode, QIcon::State state);

private:
    StyleSvgIconEngine(const StyleSvgIconEngine &other) = default;

    QRect targetIn(const QRect &rect, QIcon::Mode mode, QIcon::State state);
    bool render(QPainter *painter, const QRect &target, QIcon::Mode mode, QIcon::State state) const;

    // Shared by the clones; never changed after it is read.
    std::shared_ptr<const ThemedSvg> svg_ = std::make_shared<const ThemedSvg>();
    QSizeF defaultSize_;
    // Null stands for the one of the process.
    IconColorTheme *theme_ = nullptr;
    QString fileName_;
    bool modePinned_ = false;
    int mode_ = QIcon::Normal;
    bool statePinned_ = false;
    int state_ = QIcon::Off;
};
