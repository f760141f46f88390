#pragma once

/// The ids of shortcuts that are the gallery's own.
namespace GalleryShortcuts {

/// Enters them all, so that they are known before the page that they belong to is created.
void registerIds();

} // namespace GalleryShortcuts
