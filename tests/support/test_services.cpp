#include "test_services.h"

TestServices::TestServices(Transformer *component) {
    process.objTransformer = component;
    translation.gLanguage = 1;
    errors.SetSink(&errorSink);
}

FieldServices TestServices::fieldServices() {
    return {.process = process,
            .translation = translation,
            .errors = errors,
            .boxes = boxes,
            .clipboard = clipboard,
            .shell = shell};
}

void TestServices::translate(const QStringList &rows) {
    QString table = QStringLiteral("[2]\n") + rows.join(u'\n');
    translation.Dictionary().LoadText(table.replace(u'|', u'\t'));
    translation.gLanguage = 2;
}
