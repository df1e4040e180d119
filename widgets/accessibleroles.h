#pragma once

/// Roles of our own controls for screen readers, which can press them: pictures that act are buttons, labels
/// that open a page are links.
namespace AccessibleRoles {

/// Call it once, before the first window.
void install();

} // namespace AccessibleRoles
