#pragma once

#include "process_values.h"
#include "window_services.h"

class DownloadManager;
class ErrorReport;

// Radio > Download: hands the radio's type and the stored port to the separate downloader, which is attached to or
// started first.
class clsDownloadCommand {
  public:
    clsDownloadCommand(const ProcessValues &process, DownloadManager &downloader, MessageBoxes &boxes,
                       ErrorReport &errors);

    void mnuDownload_Click();

  private:
    const ProcessValues &mProcess;
    DownloadManager &mDownloader;
    MessageBoxes &mBoxes;
    ErrorReport &mErrors;
};
