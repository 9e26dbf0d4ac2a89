#pragma once

#include <QString>

// Where the pages of a help file are. A help file bears a logical name, "kx4kp_en.chm"; its pages stand in a folder of
// the base name, a topic's page is "<number>.html", the contents are "index.html".
namespace HelpPages {
// The pages of a file given with its folder: beside that folder's programs, else in the package's shared folder.
[[nodiscard]] QString folderOf(const QString &file);
[[nodiscard]] QString pageOfTopic(qint32 number);
// The page of a form by its class name.
[[nodiscard]] QString pageOfForm(const QString &typeName);
} // namespace HelpPages
