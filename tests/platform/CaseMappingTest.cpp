#include "tactix/platform/private/CaseMapping.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>

#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

/// The letters of a block that have an upper case, and that upper case below them.
struct LetterRow {
  const char* name;
  std::u32string_view letters;
  std::u32string_view upper;
};

// Written out letter by letter, unlike the library's table, and made from another source: Python's str.upper(), or
// where that gives two characters, as of a Greek letter with an iota below, its str.title().
const LetterRow Letters[] = {
    {"Ascii", U"abcdefghijklmnopqrstuvwxyz", U"ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
    {"Latin1Supplement", U"µàáâãäåæçèéêëìíîïðñòóôõöøùúûüýþÿ", U"ΜÀÁÂÃÄÅÆÇÈÉÊËÌÍÎÏÐÑÒÓÔÕÖØÙÚÛÜÝÞŸ"},
    {"LatinExtendedA",
     U"āăąćĉċčďđēĕėęěĝğġģĥħĩīĭįıĳĵķĺļľŀłńņňŋōŏő"
     U"œŕŗřśŝşšţťŧũūŭůűųŵŷźżžſ",
     U"ĀĂĄĆĈĊČĎĐĒĔĖĘĚĜĞĠĢĤĦĨĪĬĮIĲĴĶĹĻĽĿŁŃŅŇŊŌŎŐ"
     U"ŒŔŖŘŚŜŞŠŢŤŦŨŪŬŮŰŲŴŶŹŻŽS"},
    {"LatinExtendedB",
     U"ƀƃƅƈƌƒƕƙƚƞơƣƥƨƭưƴƶƹƽƿǅǆǈǉǋǌǎǐǒǔǖǘǚǜǝǟǡǣǥ"
     U"ǧǩǫǭǯǲǳǵǹǻǽǿȁȃȅȇȉȋȍȏȑȓȕȗșțȝȟȣȥȧȩȫȭȯȱȳȼȿɀ"
     U"ɂɇɉɋɍɏ",
     U"ɃƂƄƇƋƑǶƘȽȠƠƢƤƧƬƯƳƵƸƼǷǄǄǇǇǊǊǍǏǑǓǕǗǙǛƎǞǠǢǤ"
     U"ǦǨǪǬǮǱǱǴǸǺǼǾȀȂȄȆȈȊȌȎȐȒȔȖȘȚȜȞȢȤȦȨȪȬȮȰȲȻⱾⱿ"
     U"ɁɆɈɊɌɎ"},
    {"IpaExtensions", U"ɐɑɒɓɔɖɗəɛɜɠɡɣɥɦɨɩɪɫɬɯɱɲɵɽʀʂʃʇʈʉʊʋʌʒʝʞ",
     U"ⱯⱭⱰƁƆƉƊƏƐꞫƓꞬƔꞍꞪƗƖꞮⱢꞭƜⱮƝƟⱤƦꟅƩꞱƮɄƱƲɅƷꞲꞰ"},
    {"Greek",
     U"ͱͳͷͻͼͽάέήίαβγδεζηθικλμνξοπρςστυφχψωϊϋόύώ"
     U"ϐϑϕϖϗϙϛϝϟϡϰϱϲϳϵϸϻ",
     U"ͰͲͶϽϾϿΆΈΉΊΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΣΤΥΦΧΨΩΪΫΌΎΏ"
     U"ΒΘΦΠϏϘϚϜϞϠΚΡϹͿΕϷϺ"},
    {"Cyrillic",
     U"абвгдежзийклмнопрстуфхцчшщъыьэюяѐёђѓєѕії"
     U"јљњћќѝўџѡѣѥѧѩѫѭѯѱѳѵѷѹѻѽѿҁҋҍҏґғҕҗҙқҝҟҡңҥҧ"
     U"ҩҫҭүұҳҵҷҹһҽҿӂӄӆӈӊӌӎӏӑӓӕӗәӛӝӟӡӣӥӧөӫӭӯӱӳӵӷ"
     U"ӹӻӽӿ",
     U"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯЀЁЂЃЄЅІЇ"
     U"ЈЉЊЋЌЍЎЏѠѢѤѦѨѪѬѮѰѲѴѶѸѺѼѾҀҊҌҎҐҒҔҖҘҚҜҞҠҢҤҦ"
     U"ҨҪҬҮҰҲҴҶҸҺҼҾӁӃӅӇӉӋӍӀӐӒӔӖӘӚӜӞӠӢӤӦӨӪӬӮӰӲӴӶ"
     U"ӸӺӼӾ"},
    {"CyrillicSupplement", U"ԁԃԅԇԉԋԍԏԑԓԕԗԙԛԝԟԡԣԥԧԩԫԭԯ",
     U"ԀԂԄԆԈԊԌԎԐԒԔԖԘԚԜԞԠԢԤԦԨԪԬԮ"},
    {"CyrillicExtendedC", U"ᲀᲁᲂᲃᲄᲅᲆᲇᲈ", U"ВДОСТТЪѢꙊ"},
    {"PhoneticExtensions", U"ᵹᵽᶎ", U"ꝽⱣꟆ"},
    {"LatinExtendedAdditional",
     U"ḁḃḅḇḉḋḍḏḑḓḕḗḙḛḝḟḡḣḥḧḩḫḭḯḱḳḵḷḹḻḽḿṁṃṅṇṉṋṍṏ"
     U"ṑṓṕṗṙṛṝṟṡṣṥṧṩṫṭṯṱṳṵṷṹṻṽṿẁẃẅẇẉẋẍẏẑẓẕẛạảấầ"
     U"ẩẫậắằẳẵặẹẻẽếềểễệỉịọỏốồổỗộớờởỡợụủứừửữựỳỵỷ"
     U"ỹỻỽỿ",
     U"ḀḂḄḆḈḊḌḎḐḒḔḖḘḚḜḞḠḢḤḦḨḪḬḮḰḲḴḶḸḺḼḾṀṂṄṆṈṊṌṎ"
     U"ṐṒṔṖṘṚṜṞṠṢṤṦṨṪṬṮṰṲṴṶṸṺṼṾẀẂẄẆẈẊẌẎẐẒẔṠẠẢẤẦ"
     U"ẨẪẬẮẰẲẴẶẸẺẼẾỀỂỄỆỈỊỌỎỐỒỔỖỘỚỜỞỠỢỤỦỨỪỬỮỰỲỴỶ"
     U"ỸỺỼỾ"},
    {"GreekExtended",
     U"ἀἁἂἃἄἅἆἇἐἑἒἓἔἕἠἡἢἣἤἥἦἧἰἱἲἳἴἵἶἷὀὁὂὃὄὅὑὓὕὗ"
     U"ὠὡὢὣὤὥὦὧὰάὲέὴήὶίὸόὺύὼώᾀᾁᾂᾃᾄᾅᾆᾇᾐᾑᾒᾓᾔᾕᾖᾗᾠᾡ"
     U"ᾢᾣᾤᾥᾦᾧᾰᾱᾳιῃῐῑῠῡῥῳ",
     U"ἈἉἊἋἌἍἎἏἘἙἚἛἜἝἨἩἪἫἬἭἮἯἸἹἺἻἼἽἾἿὈὉὊὋὌὍὙὛὝὟ"
     U"ὨὩὪὫὬὭὮὯᾺΆῈΈῊΉῚΊῸΌῪΎῺΏᾈᾉᾊᾋᾌᾍᾎᾏᾘᾙᾚᾛᾜᾝᾞᾟᾨᾩ"
     U"ᾪᾫᾬᾭᾮᾯᾸᾹᾼΙῌῘῙῨῩῬῼ"},
    {"NumberForms", U"ⅎⅰⅱⅲⅳⅴⅵⅶⅷⅸⅹⅺⅻⅼⅽⅾⅿↄ", U"ℲⅠⅡⅢⅣⅤⅥⅦⅧⅨⅩⅪⅫⅬⅭⅮⅯↃ"},
    {"LatinExtendedC", U"ⱡⱥⱦⱨⱪⱬⱳⱶ", U"ⱠȺȾⱧⱩⱫⱲⱵ"},
    {"CyrillicExtendedB",
     U"ꙁꙃꙅꙇꙉꙋꙍꙏꙑꙓꙕꙗꙙꙛꙝꙟꙡꙣꙥꙧꙩꙫꙭꚁꚃꚅꚇꚉꚋꚍꚏꚑꚓꚕꚗꚙꚛ",
     U"ꙀꙂꙄꙆꙈꙊꙌꙎꙐꙒꙔꙖꙘꙚꙜꙞꙠꙢꙤꙦꙨꙪꙬꚀꚂꚄꚆꚈꚊꚌꚎꚐꚒꚔꚖꚘ"
     U"Ꚛ"},
    {"LatinExtendedD",
     U"ꜣꜥꜧꜩꜫꜭꜯꜳꜵꜷꜹꜻꜽꜿꝁꝃꝅꝇꝉꝋꝍꝏꝑꝓꝕꝗꝙꝛꝝꝟꝡꝣꝥꝧꝩꝫꝭꝯꝺꝼ"
     U"ꝿꞁꞃꞅꞇꞌꞑꞓꞔꞗꞙꞛꞝꞟꞡꞣꞥꞧꞩꞵꞷꞹꞻꞽꞿꟁꟃꟈꟊꟑꟗꟙꟶ",
     U"ꜢꜤꜦꜨꜪꜬꜮꜲꜴꜶꜸꜺꜼꜾꝀꝂꝄꝆꝈꝊꝌꝎꝐꝒꝔꝖꝘꝚꝜꝞꝠꝢꝤꝦꝨꝪꝬꝮꝹꝻ"
     U"ꝾꞀꞂꞄꞆꞋꞐꞒꟄꞖꞘꞚꞜꞞꞠꞢꞤꞦꞨꞴꞶꞸꞺꞼꞾꟀꟂꟇꟉꟐꟖꟘꟵ"},
    {"LatinExtendedE", U"ꭓ", U"Ꭓ"},
    {"FullWidth", U"ａｂｃｄｅｆｇｈｉｊｋｌｍｎｏｐｑｒｓｔｕｖｗｘｙｚ",
     U"ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ"},
};

class LetterCaseTest : public testing::TestWithParam<LetterRow> {};

TEST_P(LetterCaseTest, TurnsLettersIntoUpperCase) {
  const auto& [name, letters, upper] = GetParam();
  ASSERT_EQ(letters.size(), upper.size());
  for (std::size_t i = 0; i < letters.size(); ++i) {
    EXPECT_EQ(UpperCase(letters[i]), upper[i]) << std::hex << static_cast<std::uint32_t>(letters[i]);
  }
}

INSTANTIATE_TEST_SUITE_P(Rows, LetterCaseTest, testing::ValuesIn(Letters), RowName());

TEST(CaseMappingTest, LeavesEveryOtherCharacter) {
  std::set<char32_t> mapped;
  for (const LetterRow& row : Letters) {
    mapped.insert(row.letters.begin(), row.letters.end());
  }
  int wrong = 0;
  for (char32_t code = 0; code <= 0x10FFFF; ++code) {
    if (UpperCase(code) != code && !mapped.contains(code)) ++wrong;
  }
  EXPECT_EQ(wrong, 0);
}

struct TextRow {
  const char* name;
  std::string text;
  std::string upper;
};

class UpperCaseTextTest : public testing::TestWithParam<TextRow> {};

TEST_P(UpperCaseTextTest, IsInUpperCase) { EXPECT_EQ(UpperCase(GetParam().text), GetParam().upper); }

INSTANTIATE_TEST_SUITE_P(
    Rows, UpperCaseTextTest,
    testing::Values(TextRow{"Empty", "", ""}, TextRow{"Ascii", "Basic play, no. 3z{`", "BASIC PLAY, NO. 3Z{`"},
                    TextRow{"Null", std::string("a\0b", 3), std::string("A\0B", 3)},
                    TextRow{"German", "größer für Jürgen", "GRÖßER FÜR JÜRGEN"},
                    TextRow{"GrowsAndShrinks", "ıɐÿµ", "IⱯŸΜ"}, TextRow{"Turkish", "iı", "II"},
                    TextRow{"French", "œuvre ŷ", "ŒUVRE Ŷ"}, TextRow{"Vietnamese", "việt", "VIỆT"},
                    TextRow{"Greek", "στρατηγός", "ΣΤΡΑΤΗΓΌΣ"},
                    TextRow{"Cyrillic", "стратегия ёжика", "СТРАТЕГИЯ ЁЖИКА"}, TextRow{"OneForOneOnly", "ŉǰΐﬁ", "ŉǰΐﬁ"},
                    TextRow{"OtherScripts", "ა ա ⰰ ⓐ 牌 ♠", "ა ա ⰰ ⓐ 牌 ♠"},
                    TextRow{"BeyondTheFirstPlane", "a\xF0\x90\x90\xA8z", "A\xF0\x90\x90\xA8Z"},
                    TextRow{"Combining", "e\xCC\x81", "E\xCC\x81"}, TextRow{"TrailByteAlone", "a\x80z", "A\x80Z"},
                    TextRow{"CutOff", "az\xC3", "AZ\xC3"}, TextRow{"Overlong", "\xC1\xA1y", "\xC1\xA1Y"},
                    TextRow{"Surrogate", "x\xED\xA0\x80x", "X\xED\xA0\x80X"}),
    RowName());

}  // namespace
}  // namespace tactix::tests
