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

/// The size and the pressure of a tank as a file may mean them, in m³ and Pa.
/// @{
double cubicMetresOf(double volume);
double pascalsOf(double pressure);
/// @}
/// "Lowest temperature: 18.5 °C (65 °F)", from kelvin.
void tellKelvin(DiveFiller& filler, const std::string& label, std::string_view kelvin);

/// Replaces the columns that an element tells by those of `edited`, as a change made elsewhere;
/// `told` is the element's text.
void takeEdited(SourceDive& dive, const SourceDive& edited, int column, const std::string& told);

}  // namespace nautrel::exchange
