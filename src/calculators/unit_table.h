// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>

/// How the boxes of the unit calculator follow from each other. The table is written as the links
/// are told: `Text4 = Text3 * 3.28`.
namespace nautrel::unit_table {

struct Step {
  enum Kind { Plus, Minus, Times, DividedBy };
  Kind kind = Plus;
  double operand = 0;
};

/// The text of a box, taken through up to three steps from left to right. Without a step the text
/// is copied as it stands.
struct Formula {
  int box = 0;
  std::array<Step, 3> steps{};
  std::size_t count = 0;
  /// A number below it makes the target empty.
  std::optional<double> emptyBelow{};

  constexpr Formula then(Step::Kind kind, double operand) const {
    Formula longer = *this;
    longer.steps[longer.count++] = {kind, operand};
    return longer;
  }
  constexpr Formula orEmptyBelow(double limit) const {
    Formula limited = *this;
    limited.emptyBelow = limit;
    return limited;
  }
};

constexpr Formula operator+(Formula f, double x) {
  return f.then(Step::Plus, x);
}
constexpr Formula operator-(Formula f, double x) {
  return f.then(Step::Minus, x);
}
constexpr Formula operator*(Formula f, double x) {
  return f.then(Step::Times, x);
}
constexpr Formula operator/(Formula f, double x) {
  return f.then(Step::DividedBy, x);
}

struct Link {
  int target = 0;
  Formula formula{};
};

struct Box {
  int number;

  constexpr operator Formula() const { return {number}; }
  constexpr Link operator=(const Formula& formula) const { return {number, formula}; }
};

/// One source box and its links, in their order of evaluation; the places behind the last link
/// have no target.
struct Row {
  Box source;
  std::array<Link, 8> links;
};

constexpr Box Text1{1}, Text2{2}, Text3{3}, Text4{4}, Text6{6}, Text7{7}, Text8{8}, Text9{9},
    Text10{10}, Text11{11}, Text12{12}, Text13{13}, Text14{14}, Text15{15}, Text16{16}, Text17{17},
    Text18{18}, Text19{19}, Text20{20}, Text21{21}, Text22{22}, Text23{23}, Text24{24}, Text25{25},
    Text26{26}, Text27{27}, Text28{28}, Text29{29}, Text30{30}, Text31{31}, Text32{32}, Text33{33},
    Text34{34}, Text35{35}, Text36{36}, Text37{37}, Text38{38}, Text39{39};

/// Feet of water above a pressure in bar; there is none below the pressure of the air.
constexpr Formula kDepth = ((Text20 - 1) * 10 * 3.28).orEmptyBelow(1);

// The factors are rounded on purpose and contradict each other here and there (two for the pound,
// two for PSI, two ways through the winds): divers compare with what the tables always gave.
// clang-format off
constexpr std::array<Row, 38> kRows{{
    // Length: centimeter, inch, meter, foot, yard, fathom, kilometer, mile, nautical mile
    {Text1,  {Text2 = Text1 * 0.393, Text3 = Text1 / 100,   Text4 = Text3 * 3.28,  Text6 = Text3 * 1.093,
              Text7 = Text3 * 0.546, Text8 = Text3 / 1000,  Text9 = Text8 * 0.621, Text10 = Text8 * 0.539}},
    {Text2,  {Text1 = Text2 / 0.393, Text3 = Text1 / 100,   Text4 = Text3 * 3.28,  Text6 = Text3 * 1.093,
              Text7 = Text3 * 0.546, Text8 = Text3 / 1000,  Text9 = Text8 * 0.621, Text10 = Text8 * 0.539}},
    {Text3,  {Text4 = Text3 * 3.28,  Text1 = Text3 * 100,   Text2 = Text1 * 0.393, Text6 = Text3 * 1.093,
              Text7 = Text3 * 0.546, Text8 = Text3 / 1000,  Text9 = Text8 * 0.621, Text10 = Text8 * 0.539}},
    {Text4,  {Text3 = Text4 / 3.28,  Text1 = Text3 * 100,   Text2 = Text1 * 0.393, Text6 = Text3 * 1.093,
              Text7 = Text3 * 0.546, Text8 = Text3 / 1000,  Text9 = Text8 * 0.621, Text10 = Text8 * 0.539}},
    {Text6,  {Text3 = Text6 / 1.093, Text1 = Text3 * 100,   Text2 = Text1 * 0.393, Text4 = Text3 * 3.28,
              Text7 = Text3 * 0.546, Text8 = Text3 / 1000,  Text9 = Text8 * 0.621, Text10 = Text8 * 0.539}},
    {Text7,  {Text3 = Text7 / 0.546, Text1 = Text3 * 100,   Text2 = Text1 * 0.393, Text4 = Text3 * 3.28,
              Text6 = Text3 * 1.093, Text8 = Text3 / 1000,  Text9 = Text8 * 0.621, Text10 = Text8 * 0.539}},
    {Text8,  {Text3 = Text8 * 1000,  Text4 = Text3 * 3.28,  Text1 = Text3 * 100,   Text2 = Text1 * 0.393,
              Text6 = Text3 * 1.093, Text7 = Text3 * 0.546, Text9 = Text8 * 0.621, Text10 = Text8 * 0.539}},
    {Text9,  {Text8 = Text9 / 0.621, Text3 = Text8 * 1000,  Text4 = Text3 * 3.28,  Text1 = Text3 * 100,
              Text2 = Text1 * 0.393, Text6 = Text3 * 1.093, Text7 = Text3 * 0.546, Text10 = Text8 * 0.539}},
    {Text10, {Text8 = Text10 / 0.539, Text3 = Text8 * 1000, Text4 = Text3 * 3.28,  Text1 = Text3 * 100,
              Text2 = Text1 * 0.393, Text6 = Text3 * 1.093, Text7 = Text3 * 0.546, Text9 = Text8 * 0.621}},

    // Volumes: cubic centimeter, gallon, cubic meter, liter, cubic inch, cubic foot
    {Text11, {Text13 = Text11 / 1000000, Text14 = Text11 / 1000,    Text12 = Text14 * 0.22,
              Text36 = Text11 / 16.378,  Text37 = Text14 / 28.317}},
    {Text12, {Text14 = Text12 / 0.22,    Text11 = Text14 * 1000,    Text13 = Text11 / 1000000,
              Text36 = Text11 / 16.378,  Text37 = Text14 / 28.317}},
    {Text13, {Text11 = Text13 * 1000000, Text14 = Text11 / 1000,    Text12 = Text14 * 0.22,
              Text36 = Text11 / 16.378,  Text37 = Text14 / 28.317}},
    {Text14, {Text11 = Text14 * 1000,    Text13 = Text11 / 1000000, Text12 = Text14 * 0.22,
              Text36 = Text11 / 16.378,  Text37 = Text14 / 28.317}},
    {Text36, {Text11 = Text36 * 16.378,  Text13 = Text11 / 1000000, Text14 = Text11 / 1000,
              Text12 = Text14 * 0.22,    Text37 = Text14 * 28.317}},
    {Text37, {Text14 = Text37 * 28.317,  Text11 = Text14 * 1000,    Text13 = Text11 / 1000000,
              Text12 = Text14 * 0.22,    Text36 = Text11 / 16.378}},

    // Weight: kilogram, pound, ton, ounce, gram, newton, kilonewton
    {Text15, {Text17 = Text15 / 1000,   Text16 = Text15 * 2.205,  Text19 = Text15 * 1000,
              Text18 = Text19 / 28.349, Text38 = Text15 * 10,     Text39 = Text15 / 100}},
    {Text16, {Text15 = Text16 * 0.454,  Text17 = Text15 / 1000,   Text19 = Text15 * 1000,
              Text18 = Text19 / 28.349, Text38 = Text15 * 10,     Text39 = Text15 / 100}},
    {Text17, {Text15 = Text17 * 1000,   Text16 = Text15 * 2.205,  Text19 = Text15 * 1000,
              Text18 = Text19 / 28.349, Text38 = Text15 * 10,     Text39 = Text15 / 100}},
    {Text18, {Text19 = Text18 * 28.349, Text15 = Text19 / 1000,   Text16 = Text15 / 0.454,
              Text17 = Text15 / 1000,   Text38 = Text15 * 10,     Text39 = Text15 / 100}},
    {Text19, {Text15 = Text19 / 1000,   Text17 = Text15 / 1000,   Text16 = Text15 * 2.205,
              Text18 = Text19 / 28.349, Text38 = Text15 * 10,     Text39 = Text15 / 100}},
    {Text38, {Text15 = Text38 / 10,     Text17 = Text15 / 1000,   Text16 = Text15 * 2.205,
              Text19 = Text15 * 1000,   Text18 = Text19 / 28.349, Text39 = Text15 / 100}},
    {Text39, {Text15 = Text39 * 100,    Text17 = Text15 / 1000,   Text16 = Text15 * 2.205,
              Text19 = Text15 * 1000,   Text18 = Text19 / 28.349, Text38 = Text15 * 10}},

    // Pressure: bar, Pascal, hPa, atm, depth in foot, kN/m², PSI
    {Text20, {Text24 = kDepth,          Text21 = Text20 * 100000, Text22 = Text20 * 1000,
              Text25 = Text20 * 100,    Text23 = Text20 / 1.013,  Text35 = Text20 * 14.223}},
    {Text21, {Text20 = Text21 / 100000, Text22 = Text20 * 1000,   Text25 = Text20 * 100,
              Text24 = kDepth,          Text23 = Text20 / 1.013,  Text35 = Text20 * 14.223}},
    {Text22, {Text20 = Text22 / 1000,   Text21 = Text20 * 100000, Text25 = Text20 * 100,
              Text24 = kDepth,          Text23 = Text20 / 1.013,  Text35 = Text20 * 14.223}},
    {Text23, {Text20 = Text23 * 1.013,  Text24 = kDepth,          Text21 = Text20 * 100000,
              Text22 = Text20 * 1000,   Text25 = Text20 * 100,    Text35 = Text23 * 14.7}},
    {Text24, {Text20 = Text24 / (10 * 3.28) + 1, Text21 = Text20 * 100000, Text22 = Text20 * 1000,
              Text25 = Text20 * 100,    Text23 = Text20 / 1.013,  Text35 = Text20 * 14.223}},
    {Text25, {Text20 = Text25 / 100,    Text22 = Text20 * 1000,   Text21 = Text20 * 100000,
              Text24 = kDepth,          Text23 = Text20 / 1.013,  Text35 = Text20 * 14.223}},
    {Text35, {Text20 = Text35 * (1 / 14.223), Text24 = kDepth,    Text21 = Text20 * 100000,
              Text22 = Text20 * 1000,   Text25 = Text20 * 100,    Text23 = Text35 * (1 / 14.7)}},

    // Temperature: Celsius, Kelvin, Fahrenheit
    {Text26, {Text27 = Text26 + 273,              Text28 = Text26 * (9.0 / 5) + 32}},
    {Text27, {Text26 = Text27 - 273,              Text28 = Text26 * (9.0 / 5) + 32}},
    {Text28, {Text26 = (Text28 - 32) * (5.0 / 9), Text27 = Text26 + 273}},

    // Wind: knot, miles/hour, feet/second, km/hour, meter/sec., naut. mile/hour
    {Text29, {Text31 = Text29 * 1.7,       Text33 = Text29 * 0.51,      Text30 = Text31 * (2.0 / 3),
              Text32 = Text33 * 3.6,       Text34 = Text29}},
    {Text30, {Text32 = Text30 * (8.0 / 5), Text31 = Text30 * (3.0 / 2), Text29 = Text31 / 1.7,
              Text33 = Text32 / 3.6,       Text34 = Text29}},
    {Text31, {Text29 = Text31 / 1.7,       Text30 = Text31 * (2.0 / 3), Text32 = Text30 * (8.0 / 5),
              Text33 = Text32 / 3.6,       Text34 = Text29}},
    {Text32, {Text33 = Text32 / 3.6,       Text30 = Text32 * (5.0 / 8), Text31 = Text30 * (3.0 / 2),
              Text29 = Text31 / 1.7,       Text34 = Text29}},
    {Text33, {Text32 = Text33 * 3.6,       Text30 = Text32 * (5.0 / 8), Text31 = Text30 * (3.0 / 2),
              Text29 = Text31 / 1.7,       Text34 = Text29}},
    {Text34, {Text29 = Text34,             Text31 = Text29 * 1.7,       Text33 = Text29 * 0.51,
              Text30 = Text31 * (2.0 / 3), Text32 = Text33 * 3.6}},
}};
// clang-format on

}  // namespace nautrel::unit_table
