#include "editor/categories.h"
#include "editor/value_filter.h"
#include "tariff_builder.h"

#include <gtest/gtest.h>

using namespace lumetra;
using namespace lumetra::test;

TEST(ValueFilter, JudgesTheLastCharacterAlone)
{
    const char *cases[][2] = {
        // {typed, what stays; nullptr: the text stands}
        {"", nullptr},
        {"12", nullptr},
        {"12,", "12."},
        {"1.2.", nullptr},
        {"12x", "12"},
        {"a", ""},
        {"a1", nullptr}, // a paste is judged by its last character only
        {"Importante ", "Importante"}, // the blank PopImport adds is what goes
        {"/", ""},
        {":", ""},
        {"0", nullptr},
        {"9", nullptr}, // the edges of the digits
        {"5€", "5"},
        {"1\xF0\x9F\x98\x80", "1"}, // a character outside the basic plane goes whole
    };
    for (const auto &c : cases)
        EXPECT_EQ(filtra_valore(u(c[0])).value_or(u("<stands>")), u(c[1] ? c[1] : "<stands>")) << c[0];
}

TEST(Categories, SubListsAndLabels)
{
    const char *cases[] = {"Sotto-Categoria:|0|",
                           "Sotto-Categoria:|0|",
                           "Spese:|1|Spese",
                           "Prestazioni:|8|Altro",
                           "Organo giudicante:|9|Altro",
                           "Organo giudicante:|8|Altro",
                           "Prestazioni:|2|Prestazioni di assistenza",
                           "Acconti:|1|Acconti"};
    for (int i = 0; i < 8; ++i) {
        const Sottocategorie s = sottocategorie(i);
        EXPECT_EQ(s.etichetta + u("|%1|").arg(s.voci.size()) + s.voci.value(s.voci.size() - 1), u(cases[i])) << i;
    }
    // Keys of the tariff file, odd forms included.
    EXPECT_EQ(sottocategorie(4).voci.at(0) + u("|") + sottocategorie(5).voci.mid(0, 2).join(u("|")),
              u("Giudici di pace|Giudice di pace|Gip E Gup"));
    EXPECT_EQ(sottocategorie(3).voci.at(5), u("Indennità di trasferta"));
    EXPECT_EQ(voci_categoria().at(1), u("-"));
    EXPECT_EQ(contatore(u("Città\rRoma"), 200), u("10 / 200"));
}
