#pragma once

#include "file_drop.h"
#include "shell_ports.h"

class FormNodes;
class clsDocumentCommands;
class clsFileIO;

// The document commands as start-up, tier change and dropped files see them.
class DocumentFront final : public StartUpDocuments, public FileDropTarget {
  public:
    DocumentFront(clsDocumentCommands &commands, clsFileIO &files, FormNodes &nodes);

    bool RequestReadFile(const QString &fileName) override;
    void InitialiseMRU() override;
    void SaveMRUItem() override;
    void OpenDropped(const QString &fileName) override;

  private:
    clsDocumentCommands &mCommands;
    clsFileIO &mFiles;
    FormNodes &mNodes;
};
