/// The report definition document.
#pragma once

#include "htdrdd91/base/collection.h"
#include "htdrdd91/base/dictionary.h"
#include "htdrdd91/base/event.h"
#include "htdrdd91/base/late_bound.h"
#include "htdrdd91/base/number_collection.h"
#include "htdrdd91/grade_scales/clsHTDRDDGradeScale.h"
#include "htdrdd91/model/clsHTDRDDQuestions.h"
#include "htdrdd91/model/clsHTDRDDSubtests.h"
#include "htdrdd91/model/clsHTDRDDVersions.h"
#include "htdrdd91/scaled_scores/clsHTDRDDScaledScore.h"

#include <cstdint>

namespace htdrdd {

enum HTDReportType : std::int32_t {
    HTDReportTypeGrade = 1,
    HTDReportTypeSurvey = 2,
    HTDReportTypeGenericGrade = 3, ///< a generic key, to be merged into other definitions
};

/// One report definition: the answer key of a test or a survey. `Make<clsHTDRDD>()` gives an empty one.
/// Object members are shared references: assigning one replaces it, nothing is copied or checked.
///
/// A member is defined in the folder that its work belongs to:
/// - definition_file/definition_reader.cpp: Read
/// - definition_file/definition_writer.cpp: Save, Copy
/// - definition_file/header_file.cpp: SaveHeader, LoadHeader
/// - validation/version_rules.cpp: ValidateVersions
/// - validation/key_rules.cpp: ValidateKey
/// - validation/subtest_rules.cpp: ValidateSubtests, ScaledScoreIsValid
/// - merge/text_key.cpp: MergeTextKey
/// - merge/generic_key.cpp: MergeGenericKey
/// - model/clsHTDRDD.cpp: all others
class clsHTDRDD final : public LateBound {
public:
    /// Makes the members. A failure is reported.
    clsHTDRDD() noexcept;
    [[nodiscard]] TextView ClassName() const noexcept override { return u"clsHTDRDD"; }

    Ref<clsHTDRDDQuestions> Questions;
    Ref<clsHTDRDDVersions> Versions;
    Ref<clsHTDRDDSubtests> Subtests;              ///< learning objectives; position 1 is the overall one
    Ref<clsHTDRDDGradeScale> GradeScale;          ///< of the overall learning objective
    Ref<clsHTDRDDScaledScore> ScaledScore;        ///< of the overall learning objective
    Ref<clsHTDRDDGradeScale> SubtestGradeScale;   ///< shared by the other learning objectives
    Ref<clsHTDRDDScaledScore> SubtestScaledScore; ///< shared by the other learning objectives
    Ref<Dictionary> Header;                       ///< settings of the report header; keys in any case
    Ref<Object> oState;                           ///< a slot for the host; Clear, and so Read, empties it

    /// Resets everything but FileName, and makes the definition a survey. A failure, such as a member that is
    /// an empty reference, passes to the caller, and what was reset before it stays so.
    void Clear();

    /// Reads a definition file into this object. A file that isn't there changes nothing and gives false in
    /// silence. Otherwise the object is cleared first. False for a file whose first line is no section line,
    /// in silence, and for a broken one, with a complaint; the object holds what was read up to there. Only a
    /// true result sets FileName. AfterRead is raised in any case.
    bool Read(TextView sRDDFile);

    /// Saves the definition as a password-protected archive, or with bEncrypt false as plain text, and sets
    /// FileName. False after a failure, which is reported, and where the user declines to save invalid test
    /// versions; with bVerbose false nobody is asked and they are saved. True means that a file of that name
    /// is there at the end.
    /// - The target stays as it is until the text is complete in a temporary file. Then an old target is
    ///   deleted, or where its text is single-byte kept under its name with ".old" behind it.
    /// - The document takes its grade scale and its scaled score over from learning objective 1, if that one
    ///   has any, whatever comes of the save.
    /// - This is meant: an archived save, and one that fails, leaves the text in the temporary folder for its
    ///   owner only.
    bool Save(TextView sRDDFile, bool bEncrypt = true, bool bVerbose = true);

    /// Registers the host object of this thread, for all definitions, until another takes its place; an empty
    /// reference goes back to Error.log. Whether a host is registered now. A second thread needs a host
    /// object of its own.
    bool SetError(const Ref<LateBound>& oErr);

    Text FileName; ///< path last read or saved
    Text TemplateName;
    Text Description;
    Text Notes;
    HTDReportType ReportType{}; ///< 0 in a new object
    /// The library's own version, "9.1".
    [[nodiscard]] Text Version() const;
    std::int32_t NumPages = 0;

    /// The extra credit in a subtest: number of questions and possible points. False without any, for a
    /// subtest that isn't there (both are 0 then), and after a failure, which is reported.
    bool GetExtraCredit(const Variant& lSubtest = 1, std::int32_t* lNumQuestions = nullptr,
                        double* dPossiblePoints = nullptr) const noexcept;

    /// Positions of the questions of a subtest, which is given by position or by name (case ignored), under
    /// the question names as keys. Empty for an unknown name, for a value that is neither an integer nor a
    /// text, and after a failure, which is reported; a collection without entries for a position that isn't
    /// there.
    [[nodiscard]] Ref<NumberCollection> GetSubtestQuestions(const Variant& vSubtest) const noexcept;

    /// Whether the test versions can be graded together: identifiers that differ, and what scrambled or
    /// standard versions demand. A type that is left out or empty becomes Versions->VType(); a type that is
    /// given counts instead, as a number. False for the first broken rule, with a complaint, which bVerbose
    /// false keeps from the user; lInvalidVersion is written only by the rules that speak of one version.
    /// False after a failure, which is reported.
    bool ValidateVersions(bool bVerbose = true, std::int32_t* lInvalidVersion = nullptr,
                          Variant* eVersionType = nullptr) const noexcept;

    /// Whether each learning objective, the overall one too, has a question that counts for this type of
    /// report: in a survey a tallied one, else a graded one, in a test also a subjective one. Only a false
    /// result writes lInvalidSubtest, with the position of the first one that has none; nobody is told.
    /// False after a failure, which is reported.
    bool ValidateSubtests(std::int32_t* lInvalidSubtest = nullptr) const noexcept;

    /// Whether the key can be graded with. False for the first broken rule, with a complaint, which bVerbose
    /// false keeps from the user; the positions of the question, of the key and of the learning objective
    /// are written where the rule speaks of them. False after a failure, which is reported.
    bool ValidateKey(bool bVerbose = true, std::int32_t* lInvalidQuestion = nullptr,
                     std::int32_t* lInvalidKey = nullptr,
                     std::int32_t* lInvalidSubtest = nullptr) const noexcept;

    /// Sees to it that there is an overall learning objective; where one is made, questions without
    /// memberships join it. False after a failure, which is reported.
    bool AddDefaultSubtest() noexcept;

    /// A new definition with what a file carries, made by a save to a temporary file and a read of it. This
    /// object then bears the temporary file's name and the copy the name that this one had: this is meant.
    /// Empty after a failure, which is reported.
    [[nodiscard]] Ref<clsHTDRDD> Copy() noexcept;

    bool CustomHeader = false; ///< whether the host uses the header settings

    /// Saves the header settings to a file of their own, and treats an old one as Save does. False without
    /// settings, in silence, and after a failure, which is reported.
    bool SaveHeader(TextView sHeaderFile) noexcept;

    /// Resets the header settings and takes those of a file over. False in silence for a file whose first
    /// line isn't [Header], and false after a failure, such as a file that isn't there, which is reported.
    bool LoadHeader(TextView sHeaderFile) noexcept;

    /// Replaces the answer key by a text key, a single-byte file of correct answers: one key, or a line for
    /// each standard test version, which takes a question in Versions->Question. docs/merging.md tells what
    /// may stand in it. True where the key can be graded with afterwards: it is judged as ValidateKey does,
    /// and with several versions as ValidateVersions does. False without a file and for one that holds no
    /// field, in silence; after a complaint, which bVerbose false keeps from the user; and after a failure,
    /// such as an empty file, which is reported.
    /// - Questions keep their response choices and get the texts that the file has for them, or empty ones.
    ///   Those that it has no field for are turned off.
    /// - Versions, correct answers and learning objectives are made anew; of these there is one then, with
    ///   the benchmark of the first.
    /// - A key that is refused as a whole, for its form, for more fields than questions, or for versions
    ///   without a question that tells them, changes nothing. Any other complaint leaves what was merged up
    ///   to then, and the old key is gone: keep a Copy to go back to.
    bool MergeTextKey(TextView sKeyFile, bool bVerbose = true) noexcept;

    /// Lays a generic key over this definition: its graded questions over the graded ones here, one after the
    /// other, and its subjective ones over the subjective ones. True where the merge ran to its end; the key
    /// isn't judged. False, in silence, for an empty reference and another type of report; after a complaint,
    /// which bVerbose false keeps from the user; and after a failure, which is reported.
    /// - Questions keep their names and response choices and take nearly all else. Those that are left over,
    ///   from the end on, are turned off; all that got none lose their answers.
    /// - Grade scales, scaled scores, header settings and the learning objectives that a question is in come
    ///   from the generic key; the two share the learning objectives afterwards: this is meant. There is one
    ///   test version then.
    /// - With too many graded questions nothing changes; with too many subjective ones, graded questions that
    ///   are left over are off. Any other complaint leaves what was merged up to then: keep a Copy to go back
    ///   to.
    bool MergeGenericKey(const Ref<clsHTDRDD>& oGenericRDD, bool bVerbose = true) noexcept;

    /// Whether the scaled score of the learning objective at a position can be used, or with -1 that of any.
    /// False in silence where there is none. False after a failure, which is reported.
    bool ScaledScoreIsValid(std::int32_t lSubtestIndex = -1) noexcept;

    /// Bound by name: Subtests.
    Variant Get(TextView name) override;

    Event AfterRead; ///< raised at the end of every Read

protected:
    ~clsHTDRDD() override;
};

} // namespace htdrdd
