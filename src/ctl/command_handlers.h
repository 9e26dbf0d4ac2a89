#pragma once

class ToolSession;

// What the commands do. Each answers with the exit code; wrong usage is raised as UsageError.
namespace Commands {
// Data files
int newFile(ToolSession &session);
int info(ToolSession &session);
int check(ToolSession &session);
int diff(ToolSession &session);
int squirt(ToolSession &session);
int restorePoints(ToolSession &session);
int report(ToolSession &session);
int replay(ToolSession &session);
// Values
int get(ToolSession &session);
int set(ToolSession &session);
// Records
int add(ToolSession &session);
int insert(ToolSession &session);
int repeat(ToolSession &session);
int remove(ToolSession &session);
// Tables of records
int exportRecords(ToolSession &session);
int importRecords(ToolSession &session);
// What the program knows
int fields(ToolSession &session);
int forms(ToolSession &session);
// Radios
int ports(ToolSession &session);
int interrogate(ToolSession &session);
int read(ToolSession &session);
int program(ToolSession &session);
} // namespace Commands
