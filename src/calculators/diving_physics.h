// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "platform/text.h"

/// The physics of air and buoyancy under water, from the texts of boxes to the texts of labels.
/// Depths are feet, weights pounds, volumes cubic feet, pressures psi. No text is an error: a step
/// that cannot be computed has no effect, and the steps after it go on with 0 in its place.
namespace nautrel {

/// What the diver typed about a volume of air: both depths, its volume and density at the first.
struct AirTexts {
  std::string depth1 = "0";
  std::string depth2 = "0";
  std::string volume = "1";
  std::string density = "1";
};

/// Pressures as "28.5 psi"; volume and density at the second depth with two decimals.
struct AirResults {
  std::string pressure1;
  std::string pressure2;
  std::string volume;
  std::string density;
};

AirResults airAtDepths(const AirTexts& air, const Locale& locale);

/// The picture of the two buckets of air. Heights are in the scale in which a full bucket has 40;
/// the rounded volume can make them larger, odd depths even negative.
struct AirScene {
  static constexpr float kFullBucket = 40;

  float upperAir = kFullBucket;
  float lowerAir = kFullBucket;
  std::string upperDepth = "Depth:";
  std::string lowerDepth = "Depth:";
  std::string escapeNote = "Air goes out";
  /// Whether the note and the bubbles show.
  bool airEscapes = false;
  bool arrowUp = false;
  bool arrowDown = false;
};

/// The scene after the one that stood `before`, from the texts typed and their results.
AirScene airScene(AirScene before, const AirTexts& air, const AirResults& results,
                  const Locale& locale);

enum class Water { Salt, Sweet };

enum class Tendency { Rises, Sinks, Hovers };

struct Buoyancy {
  Tendency tendency = Tendency::Hovers;
  /// The sentence with the net mass.
  std::string text;
};

Buoyancy buoyancy(Water water, std::string_view volume, std::string_view weight,
                  const Locale& locale);

/// The text of the weight box that lets a solid of this volume hover; the text before, where it
/// cannot be computed. Rounded to hundredths of a kilogram on the way.
std::string weightToHover(Water water, std::string_view volume, std::string weightBefore,
                          const Locale& locale);

/// The text of the volume box that lets a solid of this weight hover; the text before, where it
/// cannot be computed. Rounded to ten-thousandths of a cubic metre on the way.
std::string volumeToHover(Water water, std::string_view weight, std::string volumeBefore,
                          const Locale& locale);

}  // namespace nautrel
