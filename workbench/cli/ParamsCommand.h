// The parameter table as the plug-in declared it.
#pragma once

#include <string>

#include "workbench/cli/Options.h"
#include "workbench/cli/Stage.h"

// Every parameter with its value and whether it is greyed, a line each.
std::string ParameterLines(Stage& stage);

// The same as JSON.
std::string ParameterJson(Stage& stage);
