#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>

// The program's own drawings, compiled in. They follow the palette and any size.
enum class ProgramIcon {
    kNew,
    kOpen,
    kSave,
    kPrint,
    kRevert,
    kValidate,
    kAccept,
    kReject,
    kWhatsThis,
    kHelp,
    kRead,
    kProgram,
    kInterrogate,
    kTickWhite, // an outline dot: nothing to see yet
    kTickGreen,
    kGroup,
    kApplication,
    kSplash, // 3 to 2
    kFirst,  // moves between records
    kBack,
    kForward,
    kLast,
    kRecordAdd,
    kRecordInsert,
    kRecordRepeat,
    kRecordDelete,
};

[[nodiscard]] QIcon loadIcon(ProgramIcon icon);
// Size in logical pixels; sharp on a screen with that ratio of device pixels.
[[nodiscard]] QPixmap loadPixmap(ProgramIcon icon, const QSize &size, double devicePixelRatio);
