#include "file_kind.h"

#include "file_problem.h"

#include <QFileInfo>

#include <array>

namespace {
struct OtherKind {
    QByteArrayView start;  // of the content
    QStringView extension; // of files whose content is not ours
    const char *prompt;
};
// Files of the family that belong to other programs.
constexpr std::array<OtherKind, 3> kOtherKinds = {{
    {"{\n\"format\": \"KX4600 calibration\"", u"k4c",
     "The file %0:S holds calibration data of a KX4600. Open it with the calibration program."},
    {"{\n\"format\": \"ZB2500 data\"", u"z2p",
     "The file %0:S holds programming data of a ZB2500. Open it with the program of that radio."},
    {"{\n\"format\": \"ZB2500 calibration\"", u"z2c",
     "The file %0:S holds calibration data of a ZB2500. Open it with the calibration program of that radio."},
}};
} // namespace

namespace FileKinds {
FileKind of(const QByteArray &content) {
    if (content.startsWith(kDataStart))
        return FileKind::Data;
    return content.startsWith(kSquirtStart) ? FileKind::Squirt : FileKind::Foreign;
}

void requireData(const QString &path, const QByteArray &content) {
    const FileKind kind = of(content);
    if (kind == FileKind::Data)
        return;
    if (kind == FileKind::Squirt)
        throw FileProblem(
            QStringLiteral("The file %0:S is a squirt file. It cannot be opened; program it into a radio."), {path});
    const QString extension = QFileInfo(path).suffix();
    for (const OtherKind &other : kOtherKinds) {
        if (content.startsWith(other.start) || extension.compare(other.extension, Qt::CaseInsensitive) == 0)
            throw FileProblem(QString::fromLatin1(other.prompt), {path});
    }
    throw FileProblem(QStringLiteral("The file %0:S is not a KX4600 data file."), {path});
}
} // namespace FileKinds
