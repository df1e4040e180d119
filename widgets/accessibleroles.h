#pragma once

/// What a screen reader makes of controls of our own: pictures that act are buttons, labels that open a page
/// are links, and both can be pressed by it.
namespace AccessibleRoles {

/// For all windows; once, before the first.
void install();

} // namespace AccessibleRoles
