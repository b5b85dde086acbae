#include "htdrdd91/definition_file/basPublicUnicode.h"
#include "htdrdd91/foundation/clsDZip.h"
#include "support/session.h"

namespace htdrdd::test {
namespace {

class Encodings : public Session {
protected:
    /// Packs files and tests the archive for the byte order mark.
    bool IsUnicode(const std::map<Text, std::string>& members, TextView password = u"secret") {
        std::vector<Variant> names;
        for (const auto& [name, content] : members) {
            files.files[name] = content;
            names.emplace_back(name);
        }
        EXPECT_TRUE(Make<clsDZip>()->Zip(u"/exam.RDD", Array<Variant>(std::move(names)), u"secret"));
        const auto before = files.files.size();
        const bool result = basPublic::IsUnicodeFile(u"/exam.RDD", password);
        EXPECT_TRUE(files.files.size() == before && files.folders.size() == 1U) << "nothing is left";
        return result;
    }
};

TEST_F(Encodings, AreToldByTheMarkAlsoInsideAnArchive) {
    const std::string mark = Unicode(u"");
    files.files = {{u"/unicode", mark}, {u"/one", "\xFF"}, {u"/other", "\xFE\xFF"}, {u"/empty", ""}};
    EXPECT_TRUE(basPublic::IsUnicodeFile(u"/unicode", {}));
    for (const TextView file : {u"/one", u"/other", u"/empty", u"/none"})
        EXPECT_FALSE(basPublic::IsUnicodeFile(file, {}));
    EXPECT_TRUE(IsUnicode({{u"/x", mark}}));
    EXPECT_FALSE(IsUnicode({{u"/x", "\xFF"}}));
    EXPECT_TRUE(IsUnicode({{u"/x", ""}, {u"/y.rdd", mark}, {u"/z.rdd", ""}}));
    EXPECT_FALSE(IsUnicode({{u"/x", mark}, {u"/y", mark}})) << "none has the extension";
    EXPECT_FALSE(IsUnicode({{u"/x", mark}}, {})) << "it doesn't open";
}

} // namespace
} // namespace htdrdd::test
