#pragma once

class ErrorReport;

// The tail of a grid's record operations, to be called in a catch block: an error 91 goes on to the grid's command,
// which tells it in its own words, with this procedure added to its description; any other error goes to the common
// report.
void passMissingObject(ErrorReport &errors, const char *procedure);
