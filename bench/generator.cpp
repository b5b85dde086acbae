#include "generator.h"

#include "htdrdd91/base/array.h"
#include "htdrdd91/base/number.h"
#include "htdrdd91/platform/encoding.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace htdrdd::bench {
namespace {

/// Pseudo-random numbers.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : state_(seed * 2 + 1) {}
    int Below(int limit) {
        state_ *= 0xD1342543DE82EF95U;
        return static_cast<int>((state_ >> 33U) % static_cast<unsigned>(limit));
    }
    template <class List>
    const auto& OneOf(const List& list) {
        return list[static_cast<std::size_t>(Below(static_cast<int>(list.size())))];
    }

private:
    std::uint64_t state_;
};

constexpr std::array<TextView, 24> kWords{
    u"which",  u"cell",         u"the",     u"membrane", u"most",   u"likely", u"energy",      u"of",
    u"passes", u"fen\u00eatre", u"between", u"from",     u"enzyme", u"into",   u"water",       u"a",
    u"result", u"table",        u"shows",   u"growth",   u"rate",   u"plants", u"M\u00fcller", u"before"};
constexpr std::array<TextView, 4> kTopics{u"Biology", u"Chemistry", u"Physics", u"Earth science"};
constexpr std::array<TextView, 3> kDifficulties{u"Easy", u"Medium", u"Hard"};

Text Words(Dice& dice, int number) {
    Text text;
    for (int i = 0; i < number; ++i) text.append(i == 0 ? u"" : u" ").append(dice.OneOf(kWords));
    return text;
}

Text Numbered(TextView name, int number) { return Text(name).append(DecimalText(number)); }

/// Writes the keys and values of a definition, in order.
class Sink {
public:
    void Section(TextView name) {
        if (!text_.empty()) text_ += u"\r\n";
        text_.append(u"[").append(name).append(u"]\r\n");
    }
    void String(TextView key, TextView value) {
        text_.append(key).append(u"=").append(value).append(u"\r\n");
    }
    void Number(TextView key, double value) { String(key, InvariantText(value)); }
    void Flag(TextView key, bool value) { String(key, value ? u"-1" : u"0"); }
    void List(TextView key, const std::vector<Text>& values) {
        String(key, Join(Array<Text>(values), u"\t"));
    }
    [[nodiscard]] std::string Bytes() const { return std::string(kUtf16Mark) + ToUtf16(text_); }

private:
    Text text_;
};

void PutScale(Sink& sink, bool overall) {
    const std::vector<Text> grades = overall ? std::vector<Text>{u"A+", u"A", u"B+", u"B", u"C", u"D", u"F"}
                                             : std::vector<Text>{u"Secure", u"Growing", u"Beginning"};
    const std::vector<Text> values = overall
                                         ? std::vector<Text>{u"97", u"90", u"85", u"80", u"70", u"60", u"0"}
                                         : std::vector<Text>{u"82.5", u"55", u"0"};
    sink.String(u"ScaleName", overall ? u"Letters" : u"Progress");
    sink.Number(u"NumValues", static_cast<int>(grades.size()));
    sink.List(u"Grades", grades);
    sink.List(u"StartValues", values);
}

/// Some questions are true or false, some require several answers, and some are graded by a person.
void PutQuestion(Sink& sink, Dice& dice, const Shape& shape, int position) {
    const int kind = dice.Below(20);
    const bool subjective = kind == 0;
    const bool several = kind == 1;
    const bool binary = kind == 2 || kind == 3;
    const int choices = subjective ? 0 : binary ? 2 : 4 + dice.Below(2);
    std::vector<Text> values;
    std::vector<Text> codes;
    for (int i = 0; i < choices; ++i) {
        values.push_back(binary ? (i == 0 ? u"True" : u"False") : Text(1, static_cast<char16_t>(u'A' + i)));
        codes.push_back(DecimalText(i + 1));
    }
    Text answer = u"10";
    Text code = u"10";
    if (choices > 0) {
        const auto first = static_cast<std::size_t>(dice.Below(choices - 1));
        const auto pair = [&](const std::vector<Text>& list) {
            return several ? Text(u"(").append(list[first]).append(u",").append(list[first + 1]).append(u")")
                           : list[first];
        };
        answer = pair(values);
        code = pair(codes);
    }

    sink.Section(u"Question");
    sink.String(u"QuestionName", Numbered(u"Q", position));
    sink.String(u"QuestionText", Words(dice, 8 + dice.Below(12)));
    sink.List(u"AnswerValues", values);
    sink.List(u"AnswerCodes", codes);
    sink.Number(u"DataType", subjective ? 1 : 2);
    sink.String(u"MissingText", u"Missing");
    sink.Number(u"MissingValue", -1);
    sink.String(u"BlankText", u"BLANK");
    sink.Number(u"BlankValue", -2);
    sink.String(u"MultipleText", u"MULT");
    sink.Number(u"MultipleValue", -3);
    sink.Number(u"NAValue", 0);
    sink.Number(u"MultiplesPermitted", several ? 1 : 0);
    sink.Flag(u"IncludeGrade", !subjective);
    sink.Flag(u"IncludeTally", dice.Below(9) == 0);
    sink.List(u"CorrectAnswer", {answer});
    sink.List(u"CorrectCode", {code});
    if (several) sink.List(u"CorrectAnswerPoints", {u"1,.5"});
    sink.Flag(u"CorrectAnd", several);
    sink.Number(u"NumberCorrect", several ? 2 : 1);
    sink.Number(u"CorrectPoints", subjective ? 0 : dice.Below(4) == 0 ? 1.5 : 1);
    sink.Flag(u"ExtraCredit", dice.Below(40) == 0);
    sink.Flag(u"PartialCredit", several);
    sink.Flag(u"IDField", false);
    sink.Number(u"IncorrectPoints", dice.Below(3) == 0 ? -0.25 : 0.0);
    sink.Number(u"NoResponsePoints", 0);
    sink.Number(u"SubjectivePoints", subjective ? 10 : 0);
    sink.Flag(u"SubjectiveField", subjective);
    if (subjective) {
        sink.Number(u"MinValue", 0);
        sink.Number(u"MaxValue", 10.5);
    }
    sink.String(u"Difficulty", dice.OneOf(kDifficulties));
    sink.String(u"Reference", Numbered(u"Page ", dice.Below(400) + 1));
    sink.String(u"Topic", dice.OneOf(kTopics));
    sink.String(u"Keywords", Words(dice, 2));
    sink.String(u"Miscellaneous", u"");
    sink.String(u"Notes", dice.Below(6) == 0 ? Words(dice, 8) : Text());
    sink.Number(u"Benchmark", dice.Below(2) == 0 ? -999.0 : 72.5);
    std::vector<Text> memberships{u"1,1"};
    if (shape.objectives > 1)
        memberships.push_back(
            Numbered(u"", 2 + dice.Below(shape.objectives - 1)).append(dice.Below(3) == 0 ? u",1.5" : u",1"));
    sink.List(u"SubtestNumber", memberships);
}

void PutDefinition(Sink& sink, const Shape& shape) {
    Dice dice(static_cast<std::uint64_t>(shape.questions) + 7);
    sink.Section(u"Report");
    sink.String(u"TemplateName", u"Science");
    sink.Number(u"NumQuestions", shape.questions);
    sink.Number(u"NumSequences", 1);
    sink.Number(u"NumVersions", shape.versions);
    sink.Number(u"NumSubtests", shape.objectives);
    sink.Number(u"NumPages", shape.questions / 40 + 1);
    sink.String(u"Version", u"9.1");
    sink.Number(u"Type", 1);
    sink.String(u"Description", u"Made for measuring");
    sink.String(u"Notes", u"");
    sink.Flag(u"CustomHeader", false);
    for (int i = 0; i < shape.objectives; ++i) {
        sink.Section(u"Subtest");
        sink.String(u"SubtestName", i == 0 ? Text(u"Overall") : Numbered(u"Objective ", i));
        sink.String(u"SubtestDescription", Words(dice, 5));
        sink.Number(u"Benchmark", 65);
        PutScale(sink, i == 0);
    }
    sink.Section(u"Scale");
    PutScale(sink, true);
    sink.Section(u"SubtestScale");
    PutScale(sink, false);
    sink.Section(u"Header");
    for (const char16_t row : {u'1', u'2', u'3'})
        sink.String(Text(u"_R").append(1, row).append(u"C1_FLD_TEXT"), u"Name");
    sink.Section(u"Versions");
    sink.Number(u"Question", shape.versions > 0 ? 1 : 0);
    std::vector<Text> versions;
    for (int i = 0; i < shape.versions; ++i) versions.push_back(Numbered(u"V", i + 1));
    sink.List(u"Answers", versions);
    for (int i = 1; i <= shape.questions; ++i) PutQuestion(sink, dice, shape, i);
}

} // namespace

std::string DefinitionText(const Shape& shape) {
    Sink sink;
    PutDefinition(sink, shape);
    return sink.Bytes();
}

} // namespace htdrdd::bench
