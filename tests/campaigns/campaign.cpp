#include "campaign.h"

#include <QStringList>

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Campaign {
int count(int small, int full) { return qEnvironmentVariableIsEmpty("KX_FULL") ? small : full; }
int countSanitized(int small, int full) { return qEnvironmentVariableIsEmpty("KX_FULL_SANITIZED") ? small : full; }

QByteArray Tally::text() const {
    QStringList parts;
    for (auto entry = mTimes.constBegin(); entry != mTimes.constEnd(); ++entry)
        parts.append(QStringLiteral("%1 %2").arg(entry.key()).arg(entry.value()));
    return parts.join(QStringLiteral(", ")).toUtf8();
}

qsizetype below(Random &random, qsizetype limit) {
    return limit <= 0 ? 0 : std::uniform_int_distribution<qsizetype>(0, limit - 1)(random);
}

int inChild(const std::function<int()> &work) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    int status = 0;
    const bool ended = child > 0 && ::waitpid(child, &status, 0) == child;
    return ended && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

bool becomeNobody() {
    constexpr uid_t kNobody = 65534;
    if (::geteuid() != 0)
        return true;
    return ::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0;
}
} // namespace Campaign
