#pragma once

#include <ZelWidgets/zelwidgets_export.h>

/// Registers the library's own resources (stop handles, search icons, splash pictures) and
/// returns 1. They register themselves when the shared library is loaded; a program that links
/// the library statically has to call this once. Calling it again does no harm.
ZELWIDGETS_EXPORT int zelmorawidgets_init_resources();
