#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QFrame>

/// A frame that the style sheet draws whole, background included, and that is repainted when the
/// mouse comes and goes.
class ZELWIDGETS_EXPORT ZelFrame : public QFrame
{
    Q_OBJECT

public:
    explicit ZelFrame(QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    ~ZelFrame() override;
};
