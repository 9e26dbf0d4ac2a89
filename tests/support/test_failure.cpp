#include "test_failure.h"

#include <QTest>

void failTest(const QString &reason) { QTest::qFail(qPrintable(reason), __FILE__, __LINE__); }
