#include "code_page.h"

#include <array>
#include <langinfo.h>

namespace {
struct Row {
    const char *codeset;
    int number;
};
constexpr std::array kRows{
    Row{"UTF-8", CodePage::kUtf8}, Row{"UTF8", CodePage::kUtf8}, Row{"ISO-8859-1", 1252}, Row{"ISO-8859-15", 1252},
    Row{"CP1252", 1252},           Row{"GB2312", 936},           Row{"GBK", 936},         Row{"GB18030", 936},
};
} // namespace

int CodePage::ofCodeset(const QByteArray &codeset) {
    for (const Row &row : kRows) {
        if (codeset.toUpper() == row.codeset)
            return row.number;
    }
    return 0;
}

int CodePage::current() {
    if (qEnvironmentVariableIsSet("KX4600_ACP"))
        return qEnvironmentVariableIntValue("KX4600_ACP");
    return ofCodeset(nl_langinfo(CODESET));
}
