#pragma once

#include <ZelCore/zelcore_export.h>

/// Tells whether the colour theme in force is a dark one.
///
/// The style-sheet manager sets the mark where it loads the icon theme; whoever keeps a themed
/// picture compares the mark with the one that the picture was made for.
class ZELCORE_EXPORT ZelGlobalIconCache
{
public:
    ZelGlobalIconCache() = delete;

    /// False until the first theme is loaded.
    static bool darkTheme();
    static void setDarkTheme(bool dark);
};
