// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nautrel::exchange {

/// What a foot, a pound, a psi and a cubic foot of tank are in the units of UDDF (m, kg, Pa, m³).
/// The size of a tank in cubic feet is that of the gas it holds at 3000 psi.
inline constexpr double kMetresOfFoot = 0.3048;
inline constexpr double kKilogramsOfPound = 0.45359237;
inline constexpr double kPascalsOfPsi = 6894.757293168;
inline constexpr double kTankOfCubicFoot = 1.387525483e-4;
inline constexpr double kPascalsOfBar = 100000;
inline constexpr double kCubicMetresOfLitre = 0.001;
inline constexpr double kSecondsOfMinute = 60;
inline constexpr double kZeroCelsius = 273.15;  // in kelvin

/// Reads a number as files write it: blanks around it, a point or a comma, an exponent. Nothing for
/// any other text, nor for what is no finite number.
std::optional<double> readFileNumber(std::string_view text);

/// With at most so many decimals behind a point, without zeros at the end.
std::string fixedText(double number, int decimals);

/// How many digits stand behind the sign.
int decimalsOf(std::string_view number);

}  // namespace nautrel::exchange
