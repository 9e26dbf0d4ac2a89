#pragma once

#include "common_error_handler.h"
#include "failing_error_sink.h"
#include "plain_clipboard.h"
#include "process_values.h"
#include "scripted_message_boxes.h"
#include "test_shell.h"
#include "translation.h"
#include "window_services.h"

class Transformer;

// The process-wide values and services of one test, fresh in each: no dictionary, language English, an error report
// that fails the test. The component is not owned.
class TestServices {
  public:
    explicit TestServices(Transformer *component);
    TestServices(const TestServices &) = delete;
    TestServices &operator=(const TestServices &) = delete;

    ProcessValues process;
    Translation translation;
    FailingErrorSink errorSink;
    ErrorReport errors{false};
    ScriptedMessageBoxes boxes;
    PlainClipboard clipboard;
    TestShell shell;

    [[nodiscard]] FieldServices fieldServices();
    // Rows "English|translation"; the language becomes 2.
    void translate(const QStringList &rows);
};
