#include "document_front.h"

#include "document_commands.h"
#include "form_nodes.h"
#include "pending_events.h"

DocumentFront::DocumentFront(clsDocumentCommands &commands, clsFileIO &files, FormNodes &nodes)
    : mCommands(commands), mFiles(files), mNodes(nodes) {}

bool DocumentFront::RequestReadFile(const QString &fileName) { return mFiles.RequestReadFile(fileName); }
void DocumentFront::InitialiseMRU() { mCommands.InitialiseMRU(); }
void DocumentFront::SaveMRUItem() { mCommands.SaveMRUItem(); }

void DocumentFront::OpenDropped(const QString &fileName) {
    mNodes.SetFocus();
    letPendingEventsRun();
    mCommands.OpenDropped(fileName);
}
