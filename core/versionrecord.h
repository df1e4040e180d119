#pragma once

#include <QString>

/// What the program says about itself in the splash and in the About window.
namespace VersionRecord {

inline constexpr char ApplicationTitle[] = "Alembra";
inline constexpr char Comments[] =
    "Alembra, the swiss army knife of the lab worker, is the essential software of the scientist, containing "
    "numerous data very useful in a laboratory.";
inline constexpr char FileDescription[] =
    "Reference tables, charts and calculators for the chemistry and biochemistry laboratory.";
inline constexpr char LegalNotice[] =
    "© 2026 the Alembra developers. Code: MIT licence. Data: see LICENSES.md.";
inline constexpr char NoticeYears[] = "2026"; ///< of the legal notice

/// The mail address, at the host of the product's web site.
QString contactAddress();

} // namespace VersionRecord
