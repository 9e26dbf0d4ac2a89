#pragma once

#include <QString>

#include <fcntl.h>
#include <stdlib.h>
#include <unistd.h>

// A port that can be opened and at whose other end nobody answers.
struct PseudoTerminal {
    PseudoTerminal() : master(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK)) {
        ::grantpt(master);
        ::unlockpt(master);
        device = QString::fromLocal8Bit(::ptsname(master));
    }
    ~PseudoTerminal() { ::close(master); }
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;

    int master;
    QString device;
};
