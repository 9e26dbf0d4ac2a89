#pragma once

#include <QString>

#include <functional>

// How a double tells that the test has failed; replaced only by the tests of the doubles themselves.
using TestFailure = std::function<void(const QString &)>;

// Fails the running Qt Test function; it goes on to its next check.
void failTest(const QString &reason);
