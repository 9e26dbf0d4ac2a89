#pragma once

#include <QString>

// The program's identity, fixed at build time.
namespace ProductIdentity {
[[nodiscard]] Q_DECL_EXPORT QString tag();   // "KX4600"
[[nodiscard]] Q_DECL_EXPORT QString title(); // "KX4600 Programming Application"
[[nodiscard]] Q_DECL_EXPORT int versionMajor();
[[nodiscard]] Q_DECL_EXPORT int versionMinor();
[[nodiscard]] Q_DECL_EXPORT int versionRevision();
// What a caller hands to SetCallerVersion, for example "1.02.00.0034|KX4600".
[[nodiscard]] Q_DECL_EXPORT QString callerVersion();
// "1.02.00": major, minor in two digits, "00".
[[nodiscard]] Q_DECL_EXPORT QString shortVersion();
// "1.02.00.0034"
[[nodiscard]] Q_DECL_EXPORT QString fullVersion();
// Home page and support page; placeholders until the owner names them.
[[nodiscard]] Q_DECL_EXPORT QString homePage();
[[nodiscard]] Q_DECL_EXPORT QString supportPage();
} // namespace ProductIdentity
