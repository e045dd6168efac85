// The run-time half of an instance's record.
#pragma once

#include "shell/SequenceRecord.h"

// Gives the header the values of a new record. The colour map is set to the default one where
// withGradient says so, else it stays; bytes 4 to 7 stay as they are.
void InitSequenceHeader(SequenceRecord& record, bool withGradient);
