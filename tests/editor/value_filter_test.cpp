#include "editor/categories.h"
#include "editor/value_filter.h"

#include <gtest/gtest.h>

using namespace lumetra;

namespace {
QString u(const char *s) { return QString::fromUtf8(s); }
} // namespace

TEST(ValueFilter, JudgesTheLastCharacterAlone)
{
    struct Case {
        const char *text;
        const char *after; // nullptr: the text stands
    };
    const Case cases[] = {
        {"", nullptr},
        {"1", nullptr},
        {"12", nullptr},
        {"12,", "12."},       // a comma becomes the decimal point
        {"12.", nullptr},
        {"1.2.", nullptr},    // a second point is let through
        {"12x", "12"},
        {"a", ""},
        {"a1", nullptr},      // a paste is judged by its last character only
        {"1a", "1"},
        {"12 ", "12"},
        {"Importante ", "Importante"}, // the blank PopImport adds is what goes
        {"Indeterminabile ", "Indeterminabile"},
        {"-", ""},
        {"5€", "5"},
        {"/", ""},             // code 47, just below the digits
        {":", ""},             // code 58, just above
        {"0", nullptr},
        {"9", nullptr},
        {"1\xF0\x9F\x98\x80", "1"}, // a character outside the basic plane goes whole
    };
    for (const auto &c : cases) {
        const auto result = filtra_valore(u(c.text));
        if (c.after == nullptr)
            EXPECT_FALSE(result.has_value()) << c.text;
        else
            EXPECT_EQ(result.value_or(u("<none>")), u(c.after)) << c.text;
    }
}

TEST(ValueFilter, TypingCharacterByCharacter)
{
    struct Case {
        const char *typed;
        const char *shown;
    };
    const Case cases[] = {{"12,5", "12.5"}, {"12x", "12"}, {"1.2.3", "1.2.3"}, {"1,000,5", "1.000.5"}, {"abc", ""}};
    for (const auto &c : cases) {
        QString field;
        for (QChar ch : u(c.typed)) {
            field += ch;
            if (auto f = filtra_valore(field))
                field = *f;
        }
        EXPECT_EQ(field, u(c.shown)) << c.typed;
    }
}

TEST(Categories, SubListsAndLabels)
{
    struct Case {
        int index;
        const char *label;
        int count;
        const char *first;
        const char *last;
    };
    const Case cases[] = {
        {0, "Sotto-Categoria:", 0, nullptr, nullptr},
        {1, "Sotto-Categoria:", 0, nullptr, nullptr},
        {2, "Spese:", 1, "Spese", "Spese"},
        {3, "Prestazioni:", 8, "Processo di cognizione e procedimenti speciali e camerali", "Altro"},
        {4, "Organo giudicante:", 9, "Giudici di pace", "Altro"},
        {5, "Organo giudicante:", 8, "Giudice di pace", "Altro"},
        {6, "Prestazioni:", 2, "Prestazioni di consulenza", "Prestazioni di assistenza"},
        {7, "Acconti:", 1, "Acconti", "Acconti"},
    };
    for (const auto &c : cases) {
        const Sottocategorie s = sottocategorie(c.index);
        EXPECT_EQ(s.etichetta, u(c.label)) << c.index;
        ASSERT_EQ(s.voci.size(), c.count) << c.index;
        if (c.count > 0) {
            EXPECT_EQ(s.voci.front(), u(c.first)) << c.index;
            EXPECT_EQ(s.voci.back(), u(c.last)) << c.index;
        }
    }
    // Keys of the tariff file, odd forms included.
    EXPECT_EQ(sottocategorie(5).voci.at(1), u("Gip E Gup"));
    EXPECT_EQ(sottocategorie(3).voci.at(5), u("Indennità di trasferta"));
    EXPECT_EQ(sottocategorie(4).voci.at(4),
              u("Corte di cassazione e altre mag. superiori, ivi compreso tribunale comunitario di prima istanza"));
    EXPECT_EQ(voci_categoria().size(), 8);
    EXPECT_EQ(voci_categoria().at(1), u("-"));
    EXPECT_EQ(voci_importo(), (QStringList{u("Prestabilito"), u("Indeterminabile"), u("Importante")}));
}

TEST(Categories, Counter)
{
    EXPECT_EQ(contatore(QString(), 280), u("0 / 280"));
    EXPECT_EQ(contatore(u("Città\rRoma"), 200), u("10 / 200"));
}
