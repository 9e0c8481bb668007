#include <gtest/gtest.h>

#include "conversion/basAscii.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/FakeTextSurface.h"

using namespace pixmosa;
using test::Grays;

class CharacterTables : public testing::Test {
 protected:
  BasAscii ascii;
  AsciiSettings settings;
  test::FakeTextSurface surface;  // cells of 4 x 5: an area of 5 x 6 = 30 with the column and row outside
};

TEST_F(CharacterTables, BrightnessCountsOverTheWidenedCell) {
  settings.palette = 3;
  for (int c = '0'; c <= '9'; ++c) surface.ink[static_cast<std::size_t>(c)] = c - '0';
  RebuildCharacterTables(ascii, settings, surface);
  EXPECT_EQ(ascii.CellWidth, 4);
  EXPECT_EQ(ascii.CellHeight, 5);
  EXPECT_EQ(ascii.CharBrightness['0'], 20.0F / 30.0F * 255.0F);
  EXPECT_EQ(ascii.CharBrightness['9'], 11.0F / 30.0F * 255.0F);
  for (const std::size_t code : {0, 30}) EXPECT_EQ(ascii.CharBrightness[code], 99999.0F);
  for (const std::size_t code : {31, 200}) EXPECT_EQ(ascii.CharBrightness[code], 0.0F);
  EXPECT_EQ(ascii.GrayToChar[0], '9');
  EXPECT_EQ(ascii.GrayToChar[255], '0');
  // Nine steps of 255 / 9 = 28.33 levels: level 128 lies 4.518 steps above the darkest, nearest to step 5.
  EXPECT_EQ(ascii.GrayToChar[128], '4');
}

TEST_F(CharacterTables, TiesGoToTheLowestCode) {
  settings.palette = 1;
  surface.ink.fill(3);
  surface.ink[' '] = 0;
  surface.ink['Q'] = surface.ink['M'] = 12;
  RebuildCharacterTables(ascii, settings, surface);
  EXPECT_EQ(ascii.GrayToChar[0], 'M');
  EXPECT_EQ(ascii.GrayToChar[255], ' ');
  EXPECT_EQ(ascii.GrayToChar[190], '!');
}

TEST_F(CharacterTables, NegativeCountsInkAndMapsBlackToCode31) {
  surface.ink['#'] = 10;
  ascii.CountedColour = kBlack;
  RebuildCharacterTables(ascii, settings, surface);
  EXPECT_EQ(ascii.CharBrightness[' '], 0.0F);
  EXPECT_EQ(ascii.GrayToChar[0], 31);
  EXPECT_EQ(ascii.GrayToChar[255], '#');
}

TEST_F(CharacterTables, MeasuringAgainKeepsEntriesOutsideThePalette) {
  settings.palette = 3;
  RebuildCharacterTables(ascii, settings, surface);
  ascii.CharBrightness[200] = 7;
  MeasureCharacterSet(ascii, settings.font, surface);
  EXPECT_EQ(ascii.CharBrightness[200], 7);
  RebuildCharacterTables(ascii, settings, surface);
  EXPECT_EQ(ascii.CharBrightness[200], 0);
}

TEST(Sizes, ColumnsOfTheScreenAndProportionsInCells) {
  BasAscii a;
  const int columns[][4] = {// size, screen, cell, columns
                            {100, 1920, 5, 384}, {50, 1024, 7, 73}, {1, 250, 5, 1},     {5, 50, 5, 1},
                            {25, 60, 6, 2},      {75, 70, 7, 8},    {198, 1366, 8, 337}};
  for (const auto& [size, screen, cell, want] : columns) {
    a.CellWidth = cell;
    ComputeColumnCount(a, size, screen);
    EXPECT_EQ(a.AsciiColumns, want) << size << " " << screen;
  }
  a.CellWidth = 5;
  a.CellHeight = 10;
  const int extents[][6] = {                              // columns, source, method, result
                            {100, 400, 300, 0, 100, 38},  // 37.5 to even
                            {100, 400, 296, 0, 100, 37},
                            {20, 40, 18, 0, 20, 4},  // 4.5 to even
                            {100, 400, 300, 2, 300, 112},
                            {10, 1000, 1, 0, 10, 1}};
  for (const auto& [count, width, height, method, across, down] : extents) {
    a.AsciiColumns = count;
    EXPECT_EQ(ResizedExtent(a, {width, height}, method), (Extent{across, down})) << width << " x " << height;
  }
}

TEST(Grayscale, RowsLuminosityAndDriver) {
  BasAscii ascii;
  for (std::size_t g = 0; g < 256; ++g) ascii.GrayToChar[g] = g < 50 ? '#' : g < 200 ? '+' : '.';
  struct Row {
    int luminosity;
    std::vector<std::vector<int>> grays;
    const char* text;
  };
  for (const Row& r : {Row{0, {{0, 49, 50}, {199, 200, 255}}, "##+\r\n+.."},
                       {25, {{0, 149, 150}}, "++."},  // it counts twice and is limited
                       {-75, {{255, 199, 200}}, "+#+"},
                       {100, {{0, 255}}, ".."},
                       // dropped rows leave their line breaks at the end
                       {0, {{0, 0}, {0, 90}, {0, 0}, {90, 90}}, "#+\r\n++\r\n\r\n"},
                       {0, {{0}, {0}, {0}}, "\r\n\r\n"},
                       {0, {{0}}, ""}})
    EXPECT_EQ(ConvertGrayscale(ascii, r.luminosity, Grays(r.grays)), r.text);
  ascii.CellWidth = ascii.CellHeight = 1;
  ascii.AsciiColumns = 4;
  ascii.ProducedText = "antes";
  EXPECT_FALSE(GenerateAscii(ascii, {}, Grays({{255}}), 5));
  EXPECT_EQ(ascii.ProducedText, "antes");
  EXPECT_TRUE(GenerateAscii(ascii, {}, Grays({{255, 100}, {100, 255}}), kGrayscale));
  EXPECT_EQ(ascii.ProducedText, "..++\r\n..++\r\n++..\r\n++..");
}
