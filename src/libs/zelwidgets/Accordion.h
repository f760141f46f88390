#pragma once

namespace Accordion {

/// How a section starts when its settings hold nothing.
enum State : int { Open = 0, Closed = 1 };

} // namespace Accordion
