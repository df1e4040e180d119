#pragma once

#include <QString>

/// What the program says about itself in the splash and in the About window.
namespace VersionRecord {

QString applicationTitle(); ///< "Alembra"
QString comments();
QString fileDescription();
QString legalNotice();
QString noticeYears(); ///< years that the legal notice covers

/// The mail address, at the host of the product's web site.
QString contactAddress();

} // namespace VersionRecord
