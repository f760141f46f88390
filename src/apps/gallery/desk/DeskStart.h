#pragma once

class DeskWindow;

/// What the gallery does with workspaces when it starts.
namespace DeskStart {

/// Brings the stored factory workspaces up to date, and the shown window to the arrangement that
/// was left or to the workspace that was used last. If the last start ended in its restore, that is
/// left out this time, and the standard arrangement comes up.
void restore(DeskWindow *window);

} // namespace DeskStart
