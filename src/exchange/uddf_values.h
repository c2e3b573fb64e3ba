// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "exchange/dive_filler.h"
#include "exchange/uddf_dive.h"

namespace nautrel::exchange {

/// Fill a dive from the elements of another program's file.
/// @{
void fillFromStandard(DiveFiller& filler, SourceDive& dive, const StandardDive& told);
void fillFromSite(DiveFiller& filler, DiveRecord& record, const UddfDefinitions::Site& site);
/// Only what the dive's own elements leave open.
void fillFromSamples(DiveFiller& filler, const DiveRecord& record, const SampleSummary& samples);
/// @}

/// "EAN32", "21/35"; empty for air, for no mix and for one that says nothing.
std::string gasText(const UddfDefinitions::Mix* mix);
/// "12 l, 200-50 bar", from the texts of the file; empty if none says anything.
std::string tankText(std::string_view volume, std::string_view begin, std::string_view end);
/// "Lowest temperature: 18.5 °C (65.3 °F)", from kelvin.
void tellTemperature(DiveFiller& filler, const std::string& label, std::string_view kelvin);

/// Replaces the columns that an element tells by those of `edited`, as a change made elsewhere;
/// `told` is the element's text.
void takeEdited(SourceDive& dive, const SourceDive& edited, int column, const std::string& told);

}  // namespace nautrel::exchange
