// Parameter values as a user writes and reads them.
#pragma once

#include <string>
#include <string_view>

#include "workbench/host/EffectInstance.h"
#include "workbench/host/ParameterList.h"

// Sets a parameter from text: a number, "on" or "off", a popup's choice or its number, "X,Y" in
// layer pixels, or for a layer its number in the comp or "none".
//
// Throws UsageFailure, naming the parameter and what it takes, where the text is none of these or
// the value is out of range; the instance is unchanged then.
void SetFromText(EffectInstance& instance, const ParameterList& parameters, size_t index,
                 std::string_view text);

// The value in the form that SetFromText takes. Numbers read back as the same value.
std::string ValueText(const EffectInstance& instance, const ParameterList& parameters,
                      size_t index);

// What the parameter takes, such as "0 to 10" or "Left, Right, Mix".
std::string AcceptedText(const ParameterList& parameters, size_t index);

// The kind of parameter in a word, such as "slider".
std::string KindText(PF_ParamType type);
