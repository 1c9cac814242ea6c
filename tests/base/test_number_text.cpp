// How numbers are read from the boxes and written into messages and result boxes.

#include "base/number_text.h"
#include "base/calc_error.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

using namespace pilarix;

TEST(NumberText, ValReadsTheLeadingNumberOnly)
{
    struct Row {
        const char* text;
        double value;
    };
    const std::vector<Row> rows{
        {"20", 20},        {"  12.5", 12.5},  {"22,5", 22},     {"-3", -3},       {"+4", 4},
        {".5", 0.5},       {"5.", 5},         {"1e3", 1000},    {"1E-2", 0.01},   {"2e", 2},
        {"2e+", 2},        {"3.2.1", 3.2},    {"abc", 0},       {"", 0},          {"-", 0},
        {".", 0},          {"12 cm", 12},     {"\t7", 7},       {"0.0001", 0.0001},
    };
    for (const auto& r : rows)
        EXPECT_DOUBLE_EQ(Val(r.text), r.value) << '"' << r.text << '"';
}

TEST(NumberText, ValOfANumberTooLargeIsAClearError)
{
    EXPECT_THROW(Val("1e999"), CalcError);
}

TEST(NumberText, StrIsThePlainTextForm)
{
    struct Row {
        double x;
        const char* text;
    };
    const std::vector<Row> rows{
        {3.2, "3.2"},       {0.5, "0.5"},          {19, "19"},          {-0.5, "-0.5"},
        {0, "0"},           {100, "100"},          {1.0 / 3, "0.333333333333333"},
        {2.0 / 3, "0.666666666666667"},            {0.0001, "0.0001"},  {0.00001, "1E-05"},
        {1.5e15, "1.5E+15"}, {1e14, "100000000000000"}, {4347.8260869565215, "4347.82608695652"},
        {0.1 + 0.2, "0.3"}, {-1234.5, "-1234.5"},  {2.5e-7, "2.5E-07"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(Str(r.x), r.text) << r.x;
}

TEST(NumberText, R2RoundsHalfUpToTwoDecimals)
{
    EXPECT_EQ(Str(r2(3.166666)), "3.17");
    EXPECT_EQ(Str(r2(4.56)), "4.56");
    EXPECT_EQ(Str(r2(-1.005)), "-1");
    EXPECT_EQ(Str(r2(5)), "5");
}

TEST(NumberText, FormatMasks)
{
    struct Row {
        double x;
        const char* mask;
        const char* text;
    };
    const std::vector<Row> rows{
        {1234.5, "##0.00", "1234.50"}, {0.0456, "##0.000", "0.046"}, {0, "##0.00", "0.00"},
        {2.675, "##0.00", "2.68"},     {0.125, "##0.00", "0.13"},    {-0.125, "##0.00", "-0.13"},
        {9.995, "##0.00", "10.00"},    {0.4, "##0", "0"},            {0.5, "##0", "1"},
        {2.5, "##0", "3"},             {123.45, "##0.0", "123.5"},   {1e-9, "##0.00", "0.00"},
        {-1e-9, "##0.00", "0.00"},     {5, "##0.000", "5.000"},      {99999.9999, "##0.000", "100000.000"},
        {0.05, "##0.0", "0.1"},        {1.0 / 3, "##0.00", "0.33"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(Format(r.x, r.mask), r.text) << r.x << " " << r.mask;
}

TEST(NumberText, CInt16RoundsHalfToEvenAndRefusesOverflow)
{
    EXPECT_EQ(CInt16(3.5, "n"), 4);
    EXPECT_EQ(CInt16(2.5, "n"), 2);
    EXPECT_EQ(CInt16(3.4, "n"), 3);
    EXPECT_EQ(CInt16(-2.5, "n"), -2);
    EXPECT_EQ(CInt16(32767, "n"), 32767);
    EXPECT_THROW(CInt16(32767.5, "n"), CalcError);
    EXPECT_THROW(CInt16(-40000, "n"), CalcError);
    try {
        CInt16(1e6, "barras na base");
    } catch (const CalcError& e) {
        EXPECT_NE(std::string(e.what()).find("barras na base"), std::string::npos);
    }
}
