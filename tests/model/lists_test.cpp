#include "support/cases.h"
#include "support/session.h"

#include <random>

namespace htdrdd::test {
namespace {

class ModelLists : public Session {
protected:
    Ref<clsHTDRDDQuestion> question = Make<clsHTDRDDQuestion>();
    clsHTDRDDQuestions& list = *rdd->Questions;

    void Add(TextView name) {
        list.Add(Make<clsHTDRDDQuestion>(), name);
        list.Item(name)->QuestionName = name;
    }
    /// The positions that a walk visits, followed by " ".
    Text Walk(std::int32_t (clsHTDRDDQuestions::*next)(std::int32_t) const noexcept) const {
        Text positions;
        for (std::int32_t l = (list.*next)(0); l != 0; l = (list.*next)(l)) positions += DecimalText(l);
        return positions + u" ";
    }
};

/// Codes, then the highest code and its position, -7 if the position isn't set.
TEST_F(ModelLists, AQuestionHasOneHighestCodeAndTextsOnOneLine) {
    Check({u"1,5,5,2 -> 5 at 2", u"-3,0 -> 0 at -7", u" -> 0 at -7", u"abc,12abc,3 -> 12 at 2",
           u".5,1e1,9 -> 10 at 2", u"20,1e999,30 -> 20 at 1"},
          [&](const Fields& row) {
              question->AnswerCodes->RemoveAll();
              question->AnswerCodes->AddDelimitedString(row[0], u",");
              std::int16_t position = -7;
              const Text code = InvariantText(question->HighCode(&position));
              return code + u" at " + DecimalText(position);
          });
    EXPECT_EQ(Heard(), Said{kOverflow + "clsHTDRDDQuestion.HighCode"});
    question->QuestionText = u"a\r\n\nb\n\rc\r\r\nd\te";
    EXPECT_EQ(question->QuestionText, u"a  b  c  d\te") << "one line";
}

TEST_F(ModelLists, QuestionsAreInsertedOrReported) {
    for (const TextView name : {u"a", u"c"}) Add(name);
    list.Add(question, u"b", {}, u"A");
    EXPECT_EQ(list.Item(2), question) << "nothing is copied";
    list.Add(question, u"B");
    list.Add(question, {}, 1, 1);
    list.Remove(u"none");
    const std::string member = "clsHTDRDDQuestions.";
    EXPECT_EQ(Heard(),
              (Said{kKeyInUse + member + "Add", kArgument + member + "Add", kArgument + member + "Remove"}));
    list.Add(list.Item(3));
    EXPECT_EQ(list.Find(u"C"), 3) << "the first of a name";
    EXPECT_EQ(list.Find(u"C", Compare::Exact), 0);
}

TEST_F(ModelLists, WalksMayDemandMoreThanCountsDo) {
    for (const TextView name : {u"1", u"2", u"3", u"4", u"5", u"6"}) Add(name);
    list.Item(2)->IncludeGrade = list.Item(5)->IncludeGrade = true;
    list.Item(3)->SubjectiveField = true;
    list.Item(1)->IncludeTally = list.Item(6)->IncludeTally = true;
    for (const std::int32_t l : {1, 3, 5}) list.Item(l)->ExtraCredit = true;
    for (const std::int32_t l : {2, 3, 4, 5}) list.Item(l)->PartialCredit = true;
    using List = clsHTDRDDQuestions;
    EXPECT_EQ(Walk(&List::NextGraded) + Walk(&List::NextSubjective) + Walk(&List::NextTallied) +
                  Walk(&List::NextExtraCredit) + Walk(&List::NextPartialCredit),
              u"25 3 16 35 25 ");
    EXPECT_EQ((std::vector{list.NumGraded(), list.NumSubjective(), list.NumTallied(), list.NumExtraCredit(),
                           list.NumPartialCredit()}),
              (std::vector{2, 1, 2, 3, 4}));
    for (const std::int32_t from : {-1, INT32_MIN, 5, INT32_MAX}) EXPECT_EQ(list.NextGraded(from), 0) << from;
    list.Add(nullptr, u"key"); // every search that reaches it fails
    EXPECT_FALSE(list.Exists(7) || list.Exists(u"key"));
    EXPECT_EQ(list.NextGraded(2), 5);
    EXPECT_EQ(list.NextGraded(5) + list.NumGraded() + list.Find(u"b"), 0);
    EXPECT_EQ(Heard().size(), 3U);
}

TEST_F(ModelLists, ASequenceKeepsPlacesAndItsArrayABound) {
    const auto sequence = Make<clsHTDRDDSequence>();
    EXPECT_FALSE(sequence->AsArray().HasStorage());
    sequence->AddDelimitedString(u"3\t 1x\tx");
    sequence->Item(2, 7);
    sequence->Item(4, 9); // no such item
    sequence->Add(5, {}, 1);
    EXPECT_EQ(sequence->AsString(), u"5\t3\t7\t0");
    EXPECT_EQ(sequence->Item(5), 0);
    const auto array = sequence->AsArray(-1);
    EXPECT_EQ(array.UpperBound(), 2);
    EXPECT_EQ(array.At(0), 3);
    sequence->AddArray(array);
    EXPECT_EQ(sequence->Count(), 8);
}

/// The number of sequences, the version identifiers, the position of the question, and the resulting scheme.
TEST_F(ModelLists, TheSchemeOfVersionsFollowsFromWhatIsFilledIn) {
    Check({u"0 ->  -> 0 -> 0", u"1 -> A,B -> 3 -> 1", u"0 -> A -> 3 -> 0", u"0 -> A,B -> 0 -> 0",
           u"2 -> A,B -> 3 -> 2", u"3 -> A,B -> 3 -> 0", u"2 -> A,B,C -> 3 -> 0", u"2 -> A,B -> -1 -> 0"},
          [&](const Fields& row) {
              const auto versions = Make<clsHTDRDDVersions>();
              for (int i = 0; i < LeadingNumber(row[0]); ++i) versions->Sequences->Add(nullptr);
              versions->Answers->AddDelimitedString(row[1], u",");
              versions->Question = Rounded<std::int32_t>(LeadingNumber(row[2]));
              return DecimalText(versions->VType());
          });
    const auto versions = Make<clsHTDRDDVersions>();
    EXPECT_TRUE(versions->Sequences->AddDefault(-5));
    EXPECT_FALSE(versions->Sequences->AddDefault(3)) << "there is one";
    versions->Sequences->RemoveAll();
    EXPECT_TRUE(versions->Sequences->AddDefault(3));
    EXPECT_EQ(versions->Sequences->Item(1)->AsString(), u"1\t2\t3");
    versions->Sequences = nullptr;
    EXPECT_EQ(versions->VType(), HTDVersionTypeNone);
    EXPECT_EQ(Heard(), Said{kNotSet + "clsHTDRDDVersions.VType"});
}

TEST_F(ModelLists, MembershipsAreAddedForABooleanOrTheirObject) {
    const auto memberships = Make<clsHTDRDDQuestionSubtests>();
    const auto membership = Make<clsHTDRDDQuestionSubtest>();
    memberships->Add(true);
    memberships->Add(membership);
    for (const Variant& ignored : {Variant(1), Variant(u"True"), Variant(rdd), Variant(), Variant::Null(),
                                   Variant(Ref<clsHTDRDDQuestionSubtest>())})
        memberships->Add(ignored);
    memberships->Remove(1);
    EXPECT_EQ(memberships->Item(1), membership) << "it stays one object";
    memberships->AddArray(Array<bool>({false, true}, 7));
    EXPECT_EQ(memberships->AsArray().Items(), (std::vector<bool>{false, false, true}));
    EXPECT_EQ(FailureOf([&] { return memberships->Includes(0); }), 91);
    memberships->Item(1, nullptr);
    EXPECT_TRUE(memberships->Exists(1) && !memberships->Item(1) && !memberships->AsArray().HasStorage());
    memberships->Remove(9);
    memberships->AddArray(Array<bool>());
    const std::string member = "clsHTDRDDQuestionSubtests.";
    EXPECT_EQ(Heard(), (Said{kNotSet + member + "AsArray", kSubscript + member + "Remove",
                             kSubscript + member + "AddArray"}));
}

TEST_F(ModelLists, MembershipsThatAreOnlyAnnouncedCostNothing) {
    const auto memberships = Make<clsHTDRDDQuestionSubtests>();
    memberships->AddMany(-1);
    memberships->AddMany(2147483646);
    memberships->SetInclude(2147483646, true);
    memberships->SetWeight(5, 2);
    memberships->Remove(1);
    EXPECT_TRUE(memberships->WeightOf(4) == 2 && memberships->Includes(2147483645));
    EXPECT_EQ(FailureOf([&] { memberships->AddMany(3); }), 6);
    memberships->AddMany(2);
    memberships->Add(true);
    EXPECT_EQ(memberships->Count(), 2147483647);
    EXPECT_EQ(Heard(), Said{kOverflow + "clsHTDRDDQuestionSubtests.Add"});
}

TEST_F(ModelLists, MembershipsMixValuesAndObjectsAsAPlainListDoes) {
    const auto memberships = Make<clsHTDRDDQuestionSubtests>();
    memberships->AddMany(1);                                // so that every operation has an entry
    std::vector<std::pair<bool, double>> plain{{false, 1}}; // include and weight
    std::mt19937 random(91);
    for (int step = 0; step < 3000; ++step) {
        const auto membership = Make<clsHTDRDDQuestionSubtest>();
        const bool include = membership->Include = random() % 2 != 0;
        const double weight = membership->Weight = static_cast<double>(random() % 4);
        const auto l = static_cast<std::int32_t>(random() % plain.size()) + 1;
        auto& there = plain[static_cast<std::size_t>(l) - 1];
        switch (random() % (plain.size() > 30 ? 14 : plain.size() > 1 ? 8 : 7)) {
        case 0: memberships->Add(include), plain.emplace_back(include, 1); break;
        case 1: memberships->Add(membership), plain.emplace_back(include, weight); break;
        case 2: memberships->AddMany(2), plain.resize(plain.size() + 2, {false, 1}); break;
        case 3: memberships->SetInclude(l, there.first = include); break;
        case 4: memberships->SetWeight(l, there.second = weight); break;
        case 5: memberships->Item(l)->Include = there.first = include; break;
        case 6: memberships->Item(l, membership), there = {include, weight}; break;
        default: memberships->Remove(l), plain.erase(plain.begin() + l - 1);
        }
        ASSERT_EQ(memberships->Count(), static_cast<std::int32_t>(plain.size()));
        for (std::int32_t n = 1; n <= memberships->Count(); ++n)
            ASSERT_EQ(std::pair(memberships->Includes(n), memberships->WeightOf(n)),
                      plain[static_cast<std::size_t>(n) - 1]);
    }
}

} // namespace
} // namespace htdrdd::test
