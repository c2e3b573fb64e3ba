// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <random>

#include "support/failure.h"

namespace nautrel {
namespace {

const Locale kPoint;
const Locale kComma{",", ".", "dd.MM.yyyy", "HH:mm:ss"};
const Locale kNarrow{",", "\u202F", "dd/MM/yyyy", "HH:mm:ss"};
const Locale kApostrophe{".", "\u2019", "d.M.yy", "H:mm:ss"};

struct ReadCase {
  const char* text;
  double number;
};

TEST(Number, reads_what_the_locale_writes) {
  const std::pair<Locale, std::vector<ReadCase>> cases[] = {
      {kPoint,
       {{"12", 12}, {" \t-12.5 ", -12.5}, {"+.5", 0.5}, {"5.", 5}, {"007", 7}, {"0.1", 0.1}}},
      {kPoint, {{"1,234,567.25", 1234567.25}, {"1,5", 15}, {"1,2,.5", 12.5}}},
      {kPoint, {{"1.5E3", 1500}, {"1e-3", 0.001}, {"2E+2", 200}}},
      {kPoint, {{"1E-999", 0}, {"0E999", 0}, {"1E-99999999999999999999", 0}}},
      {kComma, {{"12,5", 12.5}, {"12.5", 125}, {"1.234,5E-1", 123.45}}},
      {kNarrow, {{"1\u202F234,5", 1234.5}, {"1 234,5", 1234.5}}},
      {kApostrophe, {{"1\u2019234", 1234}, {"1'234", 1234}}},
      {Locale{",", ",", "", ""}, {{"1,5", 1.5}}},
      {Locale{".", "", "", ""}, {{"1.5", 1.5}}}};
  for (const auto& [locale, texts] : cases)
    for (const auto& [text, number] : texts) {
      EXPECT_EQ(tryNumber(text, locale), number) << text;
      EXPECT_EQ(readNumber(text, locale), number) << text;
    }
  EXPECT_EQ(tryNumber("0." + std::string(400, '0') + "1", kPoint), 0);
  EXPECT_EQ(tryNumber(std::string(400, '0') + "1", kPoint), 1);
}

TEST(Number, refuses_every_other_text_and_tells_what_is_too_large) {
  const auto refused = [](const std::string& text, int number, const Locale& locale = kPoint) {
    EXPECT_EQ(tryNumber(text, locale), std::nullopt) << text;
    EXPECT_EQ(failureOf([&] { readNumber(text, locale); }), number) << text;
  };
  for (const char* text :
       {"",    " ",     "ab",    "-",   "+",   ".",     ",",        "--1",   "- 1",
        "1 2", "1.2.3", "1.2,3", "1E",  "1E+", "E5",    "1E1.5",    "1E1,0", "5-",
        "(5)", "0x10",  "inf",   "nan", "1f",  "12 ft", "1\u00A02", "½",     "$1"})
    refused(text, TypeMismatch);
  refused(std::string("1\0", 2), TypeMismatch);
  refused("1,2,3", TypeMismatch, kComma);
  const std::string huge(310, '9');
  for (const auto* text : {"1E309", "-1E+400", "0.01E311", "1E99999999999999999999"})
    refused(text, Overflow);
  refused(huge, Overflow);
  refused(huge + ".5", Overflow);
}

TEST(WholeNumber, rounds_halves_to_the_even_neighbour_and_overflows_outside_its_range) {
  EXPECT_EQ(toInt16(0.5), 0);
  EXPECT_EQ(toInt16(1.5), 2);
  EXPECT_EQ(toInt16(-2.5), -2);
  EXPECT_EQ(toInt16(2.500001), 3);
  EXPECT_EQ(toInt32(70000.5), 70000);
  EXPECT_EQ(toInt16(32767.4), 32767);
  EXPECT_EQ(toInt16(-32768.5), -32768);
  EXPECT_EQ(toInt32(2147483647.4), 2147483647);
  EXPECT_EQ(failureOf([] { toInt16(32767.5); }), Overflow);
  EXPECT_EQ(failureOf([] { toInt16(-32768.6); }), Overflow);
  EXPECT_EQ(failureOf([] { toInt32(2147483648.0); }), Overflow);
  EXPECT_EQ(failureOf([] { toInt32(std::nan("")); }), Overflow);
}

struct WriteCase {
  double number;
  const char* text;
};

TEST(GeneralText, shows_fifteen_digits_and_an_exponent_only_where_they_do_not_reach) {
  const std::pair<Locale, std::vector<WriteCase>> cases[] = {
      {kPoint, {{0, "0"}, {-0.0, "-0"}, {100, "100"}, {-12.5, "-12.5"}, {0.1 + 0.2, "0.3"}}},
      {kPoint, {{0.0328, "0.0328"}, {0.00001, "0.00001"}, {1e-15, "0.000000000000001"}}},
      {kPoint, {{1.0 / 3, "0.333333333333333"}, {2.0 / 3, "0.666666666666667"}}},
      {kPoint, {{1e-16, "1E-16"}, {-1.5e-15, "-1.5E-15"}, {1.0 / 30, "3.33333333333333E-02"}}},
      {kPoint, {{999999999999999, "999999999999999"}, {999999999999999.9, "1E+15"}}},
      {kPoint, {{1e15, "1E+15"}, {123456789012345678.0, "1.23456789012346E+17"}}},
      {kPoint, {{-1.25e20, "-1.25E+20"}, {1.7976931348623157e308, "1.79769313486232E+308"}}},
      {kComma, {{1.0 / 30, "3,33333333333333E-02"}, {1234567.5, "1234567,5"}}}};
  for (const auto& [locale, numbers] : cases)
    for (const auto& [number, text] : numbers) EXPECT_EQ(generalText(number, locale), text);
  EXPECT_EQ(failureOf([] { generalText(std::numeric_limits<double>::infinity(), kPoint); }),
            Overflow);
}

TEST(GeneralText, reads_back_to_fifteen_digits) {
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-300, 300);
  for (int i = 0; i < 20000; ++i) {
    const double number = mantissa(random) * std::pow(10, i % 2 ? exponent(random) : i % 18 - 9);
    for (const Locale* locale : {&kPoint, &kComma}) {
      const auto text = generalText(number, *locale);
      const double again = readNumber(text, *locale);
      ASSERT_NEAR(again, number, std::abs(number) * 5.1e-15) << text;
      ASSERT_EQ(generalText(again, *locale), text);
    }
  }
}

TEST(Format, follows_its_pattern) {
  const std::pair<const char*, std::vector<WriteCase>> cases[] = {
      {"###0.000000000", {{0.393, "0.393000000"}, {200000, "200000.000000000"}}},
      {"###0.000000000", {{4.9e-10, "0.000000000"}, {5e-10, "0.000000001"}}},
      {"###0.000", {{1e-300, "0.000"}, {0.0996, "0.100"}}},
      {"###0.00", {{9.996, "10.00"}, {1.005, "1.01"}, {0.285, "0.29"}, {0.145 * 3, "0.44"}}},
      {"###0.0", {{1234567, "1234567.0"}, {1e20, "100000000000000000000.0"}}},
      {"###0.0", {{-0.04, "-0.0"}, {-0.0, "-0.0"}, {-0.05, "-0.1"}}},
      {"###0", {{2.5, "3"}, {-2.5, "-3"}}},
      {"000", {{7, "007"}}},
      {"#.##",
       {{12.345, "12.35"}, {12, "12."}, {0.5, ".5"}, {0.05, ".05"}, {0, "."}, {0.996, "1."}}},
      {"#",
       {{33.4, "33"},
        {0.4, ""},
        {0.5, "1"},
        {0, ""},
        {-0.4, ""},
        {-0.0, ""},
        {-0.5, "-1"},
        {99.5, "100"}}}};
  for (const auto& [pattern, numbers] : cases)
    for (const auto& [number, text] : numbers)
      EXPECT_EQ(formatNumber(number, pattern, kPoint), text) << number << " " << pattern;
  EXPECT_EQ(formatNumber(1234.5, "###0.00", kComma), "1234,50");
  EXPECT_EQ(formatNumber(12, "#.##", kComma), "12,");
}

TEST(Numbers, do_not_follow_the_locale_of_the_program) {
  struct CommaPoint : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
  };
  const std::locale before = std::locale::global(std::locale(std::locale(), new CommaPoint));
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German"})
    if (std::setlocale(LC_ALL, name) != nullptr) break;
  EXPECT_EQ(tryNumber("1234.5", kPoint), 1234.5);
  EXPECT_EQ(generalText(1234.5, kPoint), "1234.5");
  EXPECT_EQ(formatNumber(1234.5, "###0.00", kPoint), "1234.50");
  std::setlocale(LC_ALL, "C");
  std::locale::global(before);
}

TEST(Date, is_written_by_the_forms_of_the_locale) {
  const DateTime night{1999, 3, 7, 0, 5, 9};
  const DateTime noon{2003, 12, 24, 12, 30, 0};
  EXPECT_EQ(dateText(night, kPoint), "3/7/1999");
  EXPECT_EQ(generalDate(night, kPoint), "3/7/1999 12:05:09 AM");
  EXPECT_EQ(generalDate(noon, kPoint), "12/24/2003 12:30:00 PM");
  EXPECT_EQ(generalDate(night, kComma), "07.03.1999 00:05:09");
  EXPECT_EQ(generalDate(night, kApostrophe), "7.3.99 0:05:09");
  EXPECT_EQ(generalDate(noon, Locale{".", ",", "yyyy-MM-dd", "h:m:s ap"}), "2003-12-24 12:30:0 PM");
  EXPECT_EQ(generalDate(noon, Locale{".", ",", "d.MM.yy 'd.'", "hh'h'mm"}), "24.12.03 d. 12h30");
  Locale named{".", ",", "ddd dddd, d MMM MMMM", "H"};
  EXPECT_EQ(generalDate(noon, named), "24 24, 24 12 12 12");
  named.shortMonths = {"Jan", "Feb", "Mar"};
  named.months = {"January", "February", "March"};
  named.shortDays = {"Sun", "Mon"};
  named.days = {"Sunday", "Monday"};
  EXPECT_EQ(generalDate(night, named), "Sun Sunday, 7 Mar March 0");
}

TEST(Characters, count_code_points_even_of_a_damaged_text) {
  const std::string text = "Möwe€𝄞";
  EXPECT_EQ(characters(text), 6u);
  EXPECT_EQ(firstCharacters(text, 2), "Mö");
  EXPECT_EQ(firstCharacters(text, 5), "Möwe€");
  EXPECT_EQ(firstCharacters(text, 99), text);
  EXPECT_EQ(byteOfCharacter(text, 2), 3u);
  EXPECT_EQ(byteOfCharacter(text, 6), text.size());
  EXPECT_EQ(byteOfCharacter(text, 7), text.size());
  const std::string damaged = "a\xC3z\xFF\xE2\x82";
  EXPECT_EQ(characters(damaged), 6u);
  EXPECT_EQ(firstCharacters(damaged, 2), "a\xC3");
  EXPECT_EQ(lowerCase("A\xC3Z"), "a\xC3z");
  EXPECT_EQ(toCodePage(damaged), "a?z???");
}

TEST(LowerCase, keeps_every_character_one_character) {
  EXPECT_EQ(lowerCase("ÄÖÜ Éß 12 ROT"), "äöü éß 12 rot");
  EXPECT_EQ(lowerCase("ΣΊΣΥΦΟΣ"), "σίσυφοσ");
  EXPECT_EQ(lowerCase("İẞaǅ\uFFFDȺ Ⱦ!"), "ißaǆ\uFFFDⱥ ⱦ!");
}

TEST(Characters, beyond_the_plain_ones_are_found_at_every_place) {
  for (std::size_t length = 0; length < 90; ++length)
    for (std::size_t place = 0; place <= length; ++place) {
      const auto around = [&](const char* it) {
        return std::string(place, 'a') + it + std::string(length - place, 'z');
      };
      ASSERT_EQ(characters(around("€")), length + 1);
      ASSERT_EQ(toCodePage(around("Ü")), around("\xDC"));
      ASSERT_EQ(lowerCase(around("Ü")), around("ü"));
      ASSERT_EQ(lowerCase(around("ZȺẞ")), around("zⱥß"));
    }
}

TEST(WordCharacter, is_a_letter_a_digit_or_the_underscore) {
  for (const char32_t c : std::u32string_view(U"aZ9_äßЖ\u0301"))
    EXPECT_TRUE(isWordCharacter(c)) << static_cast<unsigned>(c);
  for (const char32_t c : std::u32string_view(U" -.,'(\n€…"))
    EXPECT_FALSE(isWordCharacter(c)) << static_cast<unsigned>(c);
}

TEST(CodePage, holds_every_byte_both_ways_and_puts_a_question_mark_for_what_it_lacks) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(characters(fromCodePage(bytes)), 256u);
  EXPECT_EQ(toCodePage(fromCodePage(bytes)), bytes);
  EXPECT_EQ(fromCodePage("\x80 \xFC \x96 \x9F"), "€ ü – Ÿ");
  EXPECT_EQ(toCodePage("Đông 𝄞"), "?\xF4ng ?");
}

}  // namespace
}  // namespace nautrel
