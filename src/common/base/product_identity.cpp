#include "product_identity.h"

#include "string_utilities.h"

namespace ProductIdentity {
QString tag() { return QStringLiteral("KX4600"); }
QString title() { return QStringLiteral("KX4600 Programming Application"); }
int versionMajor() { return KX_VERSION_MAJOR; }
int versionMinor() { return KX_VERSION_MINOR; }
int versionRevision() { return KX_VERSION_REVISION; }
QString shortVersion() {
    return QStringLiteral("%1.%2.00").arg(versionMajor()).arg(LeftPadString(QString::number(versionMinor()), u'0', 2));
}
QString fullVersion() { return shortVersion() + u'.' + LeftPadString(QString::number(versionRevision()), u'0', 4); }
QString callerVersion() { return fullVersion() + u'|' + tag(); }
QString homePage() { return QStringLiteral("https://www.example.com/kx4600"); }
QString supportPage() { return QStringLiteral("https://www.example.com/kx4600/support"); }
} // namespace ProductIdentity
