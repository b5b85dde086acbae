#include "support/cases.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class Versions : public Session {
protected:
    Ref<clsHTDRDDSequence> sequence = Make<clsHTDRDDSequence>();
};

/// Number of sequences, version identifiers, position of the question, and what follows from them.
TEST_F(Versions, TheSchemeFollowsFromWhatIsFilledIn) {
    for (const TextView row : {u"0 ->  -> 0 -> 0", u"0 -> A,B -> 3 -> 1", u"1 -> A,B -> 3 -> 1",
                               u"0 -> A -> 3 -> 0", u"0 -> A,B -> 0 -> 0", u"2 -> A,B -> 3 -> 2",
                               u"3 -> A,B -> 3 -> 0", u"2 -> A,B,C -> 3 -> 0", u"2 -> A,B -> -1 -> 0"}) {
        rdd->Clear();
        for (int i = 0; i < LeadingNumber(row); ++i) rdd->Versions->Sequences->Add(sequence);
        rdd->Versions->Answers->AddDelimitedString(Fields(row)[1], u",");
        rdd->Versions->Question = Rounded<std::int32_t>(LeadingNumber(Fields(row)[2]));
        EXPECT_EQ(DecimalText(rdd->Versions->VType()), Fields(row)[3]) << ToUtf8(row);
    }
    rdd->Versions->Sequences = nullptr;
    EXPECT_EQ(rdd->Versions->VType(), HTDVersionTypeNone);
    EXPECT_EQ(Heard(), Said{"91 Object variable or With block variable not set @ clsHTDRDDVersions.VType"});
}

TEST_F(Versions, ADefaultSequenceKeepsThePrintedOrder) {
    auto& sequences = *rdd->Versions->Sequences;
    EXPECT_TRUE(sequences.AddDefault(3));
    EXPECT_FALSE(sequences.AddDefault(4));
    EXPECT_EQ(sequences.Count(), 1);
    EXPECT_EQ(sequences.Item(1)->AsString(u","), u"1,2,3");
    sequences.RemoveAll();
    EXPECT_TRUE(sequences.AddDefault(-5));
    EXPECT_EQ(sequences.Item(1)->Count(), 0);
    EXPECT_FALSE(sequences.Item(2));
    EXPECT_EQ(FailureOf([&] { sequences.Remove(2); }), 9);
}

TEST_F(Versions, ASequenceIsAPlainListOfNumbers) {
    sequence->AddDelimitedString(u"3\t 1x\tx\t2.5\t-4");
    EXPECT_EQ(sequence->AsString(), u"3\t1\t0\t2\t-4");
    sequence->Item(2, 7);
    sequence->Item(9, 7);
    sequence->Add(8, {}, 1);
    sequence->Remove(5);
    EXPECT_EQ(sequence->AsString(u", "), u"8, 3, 7, 0, -4");
    EXPECT_EQ(sequence->Item(6), 0);
    const auto numbers = sequence->AsArray(0);
    EXPECT_EQ(numbers.UpperBound(), 4);
    sequence->RemoveAll();
    EXPECT_FALSE(sequence->AsArray().HasStorage());
    sequence->AddArray(numbers);
    EXPECT_EQ(sequence->AsString(u","), u"8,3,7,0,-4");
}

TEST_F(Versions, AFailureOfASequencePassesToTheCaller) {
    EXPECT_EQ(FailureOf([&] { sequence->AddDelimitedString(u""); }), 9);
    EXPECT_EQ(FailureOf([&] { sequence->AddDelimitedString(u"1,2147483648", u","); }), 6);
    EXPECT_EQ(FailureOf([&] { sequence->AddArray(Array<std::int32_t>()); }), 9);
    EXPECT_EQ(FailureOf([&] { sequence->Remove(1); }), 9);
    EXPECT_EQ(FailureOf([&] { sequence->Add(1, {}, 5); }), 9);
    EXPECT_EQ(sequence->Count(), 0);
}

} // namespace
} // namespace htdrdd::test
