#include "support/cases.h"
#include "support/session.h"

#include <random>

namespace htdrdd::test {
namespace {

class Memberships : public Session {
protected:
    Ref<clsHTDRDDQuestionSubtests> list = Make<clsHTDRDDQuestionSubtests>();
};

TEST_F(Memberships, AreAddedForABooleanOrTheirObject) {
    const auto membership = Make<clsHTDRDDQuestionSubtest>();
    membership->Weight = 2;
    list->Add(true);
    list->Add(membership);
    for (const Variant& ignored : {Variant(1), Variant(u"True"), Variant(rdd), Variant(), Variant::Null(),
                                   Variant(Ref<clsHTDRDDQuestionSubtest>())})
        list->Add(ignored);
    EXPECT_EQ(list->Count(), 2);
    EXPECT_EQ(list->Item(2), membership);
    EXPECT_EQ(list->WeightOf(1) + list->WeightOf(2), 3);
    membership->Include = true;
    list->AddArray(Array<bool>({false, true}, 7));
    EXPECT_EQ(list->AsArray().Items(), (std::vector<bool>{true, true, false, true}));
    EXPECT_EQ(list->AsArray(-2).LowerBound(), -2);
}

TEST_F(Memberships, AreOneObjectHoweverTheyAreReached) {
    list->AddMany(3);
    list->SetWeight(3, 4);
    const auto third = list->Item(3);
    EXPECT_EQ(third->Weight, 4);
    list->Remove(1);
    EXPECT_EQ(list->Item(2), third);
    third->Include = true;
    EXPECT_TRUE(list->Includes(2));
    list->SetInclude(2, false);
    EXPECT_FALSE(third->Include);
    list->Item(1, third);
    list->Item(3, third);
    EXPECT_EQ(list->Item(1), third);
    EXPECT_EQ(list->Count(), 2);
    EXPECT_FALSE(list->Item(3));
}

TEST_F(Memberships, ThatAreOnlyAnnouncedCostNothing) {
    list->AddMany(-1);
    list->AddMany(2147483646);
    list->SetInclude(2147483646, true);
    list->Item(5)->Weight = 2;
    list->Remove(1);
    EXPECT_EQ(list->WeightOf(4), 2);
    EXPECT_TRUE(list->Includes(2147483645));
    list->AddMany(2);
    EXPECT_EQ(FailureOf([&] { list->AddMany(1); }), 6);
    list->Add(true);
    EXPECT_EQ(list->Count(), 2147483647);
    EXPECT_EQ(Heard(), Said{"6 Overflow @ clsHTDRDDQuestionSubtests.Add"});
    list->RemoveAll();
    EXPECT_FALSE(list->AsArray().HasStorage());
}

TEST_F(Memberships, ReportUnderTheirMember) {
    list->Add(false);
    list->Remove(2);
    list->AddArray(Array<bool>());
    list->Item(1, nullptr);
    EXPECT_TRUE(list->Exists(1));
    EXPECT_FALSE(list->Item(1));
    EXPECT_FALSE(list->AsArray().HasStorage());
    for (const std::int32_t l : {0, 1, 2}) EXPECT_EQ(FailureOf([&] { return list->Includes(l); }), 91);
    EXPECT_EQ(Heard(), (Said{"9 Subscript out of range @ clsHTDRDDQuestionSubtests.Remove",
                             "9 Subscript out of range @ clsHTDRDDQuestionSubtests.AddArray",
                             "91 Object variable or With block variable not set @ "
                             "clsHTDRDDQuestionSubtests.AsArray"}));
}

TEST_F(Memberships, MixValuesAndObjectsAsAPlainListDoes) {
    std::vector<std::pair<bool, double>> plain; // include and weight
    std::mt19937 random(91);
    for (int step = 0; step < 5000; ++step) {
        const bool include = random() % 2 != 0;
        const auto weight = static_cast<double>(random() % 4);
        const std::size_t slot = plain.empty() ? 0 : random() % plain.size();
        const auto l = static_cast<std::int32_t>(slot) + 1;
        const auto membership = Make<clsHTDRDDQuestionSubtest>();
        membership->Include = include;
        membership->Weight = weight;
        const auto action = plain.empty() ? random() % 3 : random() % (plain.size() > 30 ? 14 : 8);
        switch (action) {
        case 0: list->Add(include), plain.emplace_back(include, 1); break;
        case 1: list->Add(membership), plain.emplace_back(include, weight); break;
        case 2: list->AddMany(2), plain.resize(plain.size() + 2, {false, 1}); break;
        case 3: list->SetInclude(l, plain[slot].first = include); break;
        case 4: list->SetWeight(l, plain[slot].second = weight); break;
        case 5: list->Item(l)->Include = plain[slot].first = include; break;
        case 6: list->Item(l, membership), plain[slot] = {include, weight}; break;
        default: list->Remove(l), plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(slot));
        }
        ASSERT_EQ(list->Count(), static_cast<std::int32_t>(plain.size()));
        for (std::int32_t n = 1; n <= list->Count(); ++n)
            ASSERT_EQ(std::pair(list->Includes(n), list->WeightOf(n)),
                      plain[static_cast<std::size_t>(n) - 1]);
    }
}

class SubtestsTest : public Session {};

TEST_F(SubtestsTest, AnswerWithObjectsMadeOnFirstAccess) {
    const auto subtest = Make<clsHTDRDDSubtest>();
    const Ref<clsHTDRDDGradeScale> made = subtest->GradeScale;
    EXPECT_EQ(made, subtest->GradeScale);
    subtest->GradeScale = nullptr;
    EXPECT_NE(made, subtest->GradeScale);
    EXPECT_EQ(subtest->ScaledScore->ScaledScoreCriteriaPrimary, HTDScaledScoreCriteriaOverall);
    made->ScaleName = u"Letters";
    subtest->GradeScale.MakeCopyOf(made);
    subtest->GradeScale->ScaleName += u" of its own";
    EXPECT_EQ(subtest->GradeScale->ScaleName, u"Letters of its own");
    EXPECT_EQ(made->ScaleName, u"Letters");
}

TEST_F(SubtestsTest, AreFoundByExactName) {
    for (const TextView name : {u"Overall", u"Algebra", u"algebra"}) {
        auto subtest = Make<clsHTDRDDSubtest>();
        subtest->SubtestName = name;
        rdd->Subtests->Add(subtest, name == u"algebra" ? u"key" : name);
    }
    EXPECT_EQ(rdd->Subtests->Find(u"algebra"), 3);
    EXPECT_EQ(rdd->Subtests->Find(u"overall"), 0);
    EXPECT_EQ(rdd->Subtests->Item(u"ALGEBRA")->SubtestName, u"Algebra");
    rdd->Subtests->Add(Make<clsHTDRDDSubtest>(), u"KEY");
    EXPECT_EQ(FailureOf([&] { rdd->Subtests->Remove(4); }), 9);
    rdd->Subtests->Add(nullptr);
    EXPECT_EQ(rdd->Subtests->Find(u"x"), 0);
    EXPECT_EQ(Heard(), (Said{"457 This key is already associated with an element of this collection @ "
                             "clsHTDRDDSubtests.Add",
                             "91 Object variable or With block variable not set @ clsHTDRDDSubtests.Find"}));
}

} // namespace
} // namespace htdrdd::test
