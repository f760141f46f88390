#pragma once

#include <ZelCore/zelcore_export.h>

#include <memory>

/// Keeps the machine from going to sleep, by the means of the platform: the power request of
/// Windows, else the desktop's inhibit service on the D-Bus session bus. Where there is neither,
/// nothing happens.
///
/// Nothing blocks and nothing is written to the log. For the GUI thread.
class ZELCORE_EXPORT ZelKeepAwake
{
public:
    virtual ~ZelKeepAwake();

    /// Keeps the machine awake. The power request lasts only as long as the system's idle time, so
    /// it is to be repeated every half minute or so; the inhibit service is asked only once.
    virtual void keepAwake() = 0;
    /// Ends that, however often keepAwake() was called.
    virtual void release() = 0;

    static ZelKeepAwake &instance();
    /// Puts another means in place, for tests; null brings the platform's back.
    static void setInstance(std::unique_ptr<ZelKeepAwake> keepAwake);
};
