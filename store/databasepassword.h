#pragma once

#include <QString>

/// The password of the delivered database. It keeps users from editing the tables by accident; it is not a
/// secret.
inline constexpr QLatin1StringView DatabasePassword("k3wqj41mz627h05");
