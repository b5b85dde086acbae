#include "htdrdd91/foundation/basPublicCipher.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class Repairs : public Session {
protected:
    /// Names of the scaled scores of the learning objectives.
    Text Names() const {
        Text names;
        for (std::int32_t l = 1; l <= rdd->Subtests->Count(); ++l)
            names.append(rdd->Subtests->Item(l)->ScaledScore->ScaledScoreName).append(u"|");
        return names;
    }
    /// A scaled score that is usable if the criterion is.
    static Text Score(TextView name, TextView criterion = u"1") {
        return Text(u"ScaledScoreName=")
                   .append(name)
                   .append(u"\nScaledScoreCriteriaPrimary=")
                   .append(criterion) +
               u"\nScaledScoreValues=1\nScaledScoreDBType=0\nScaledScoreDBConnect=" +
               basPublic::Encrypt(u"c") +
               u"\nScaledScoreDBUnicode=1\nScaledScoreDBScoreField=s\nScaledScoreDBMinFieldPrimary=a\n"
               u"ScaledScoreDBMaxFieldPrimary=b\n\n";
    }
};

TEST_F(Repairs, CarryScaledScoresOfOlderFilesToTheObjectives) {
    const auto read = [&](TextView document, TextView objectives, TextView overall) {
        EXPECT_TRUE(Read(Text(u"[Report]\nNumSubtests=4\n\n[ScaledScore]\n")
                             .append(document)
                             .append(u"[SubtestScaledScore]\n")
                             .append(objectives)
                             .append(u"[Subtest]\nSubtestName=x\n")
                             .append(overall)
                             .append(u"[Subtest]\nScaledScoreName=none\n\n[Subtest]\n")
                             .append(Score(u"own"))
                             .append(u"[Subtest]\n")
                             .append(Score(u"unfit", u"2"))));
        return Names();
    };
    EXPECT_EQ(read(Score(u"document", u"2"), Score(u"shared"), u"\n"), u"document|shared|own|shared|");
    EXPECT_EQ(read(Score(u"document", u"0"), Score(u"shared", u"2"), u"\n"), u"|none|own|unfit|");
    EXPECT_EQ(read(Score(u"document"), u"\n", Score(u"overall", u"3")), u"overall|none|own|unfit|");
    const auto overall = rdd->Subtests->Item(1);
    EXPECT_FALSE(rdd->ScaledScore == overall->ScaledScore);

    ASSERT_EQ(read(u"\n", Score(u"shared"), u"\n"), u"|shared|own|shared|");
    rdd->Subtests->Item(2)->ScaledScore->ScaledScoreName = u"changed";
    rdd->SubtestScaledScore->ScaledScoreName = u"too";
    EXPECT_EQ(Names(), u"|changed|own|shared|") << "each has a copy of its own";
}

} // namespace
} // namespace htdrdd::test
