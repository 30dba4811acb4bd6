#include "editor/categories.h"
#include "editor/value_filter.h"
#include "tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

TEST(ValueFilter, JudgesTheLastCharacterAlone)
{
    struct Case {
        const char *text;
        const char *after; // nullptr: the text stands
    };
    const Case cases[] = {
        {"", nullptr},      {"12", nullptr},  {"12,", "12."}, {"1.2.", nullptr}, {"12x", "12"}, {"a", ""},
        {"a1", nullptr},    // a paste is judged by its last character only
        {"1a", "1"},        {"Importante ", "Importante"}, // the blank PopImport adds is what goes
        {"/", ""},          {":", ""},        {"0", nullptr}, {"9", nullptr}, // the edges of the digits
        {"5€", "5"},        {"1\xF0\x9F\x98\x80", "1"},    // a character outside the basic plane goes whole
    };
    for (const auto &c : cases) {
        const auto result = filtra_valore(u(c.text));
        if (c.after == nullptr) {
            EXPECT_FALSE(result.has_value()) << c.text;
        } else {
            EXPECT_EQ(result.value_or(u("<none>")), u(c.after)) << c.text;
        }
    }
}

TEST(Categories, SubListsAndLabels)
{
    struct Case {
        int index;
        const char *label;
        int count;
        const char *last;
    };
    const Case cases[] = {{0, "Sotto-Categoria:", 0, nullptr}, {1, "Sotto-Categoria:", 0, nullptr},
                          {2, "Spese:", 1, "Spese"},           {3, "Prestazioni:", 8, "Altro"},
                          {4, "Organo giudicante:", 9, "Altro"}, {5, "Organo giudicante:", 8, "Altro"},
                          {6, "Prestazioni:", 2, "Prestazioni di assistenza"}, {7, "Acconti:", 1, "Acconti"}};
    for (const auto &c : cases) {
        const Sottocategorie s = sottocategorie(c.index);
        EXPECT_EQ(s.etichetta, u(c.label)) << c.index;
        ASSERT_EQ(s.voci.size(), c.count) << c.index;
        if (c.count > 0) {
            EXPECT_EQ(s.voci.back(), u(c.last)) << c.index;
        }
    }
    // Keys of the tariff file, odd forms included.
    EXPECT_EQ(sottocategorie(4).voci.at(0), u("Giudici di pace"));
    EXPECT_EQ(sottocategorie(5).voci.at(0), u("Giudice di pace"));
    EXPECT_EQ(sottocategorie(5).voci.at(1), u("Gip E Gup"));
    EXPECT_EQ(sottocategorie(3).voci.at(5), u("Indennità di trasferta"));
    EXPECT_EQ(voci_categoria().at(1), u("-"));
    EXPECT_EQ(contatore(u("Città\rRoma"), 200), u("10 / 200"));
}
