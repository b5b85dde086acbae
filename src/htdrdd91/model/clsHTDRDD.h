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

/// One report definition: the answer key of a test or a survey. `Make<clsHTDRDD>()` creates an empty one.
/// Object members are shared references: assignment replaces the reference, without a copy or a check.
///
/// Each member is defined in the folder that its work belongs to:
/// - definition_file/definition_reader.cpp: Read
/// - definition_file/definition_writer.cpp: Save, Copy
/// - definition_file/header_file.cpp: SaveHeader, LoadHeader
/// - validation/version_rules.cpp: ValidateVersions
/// - validation/key_rules.cpp: ValidateKey
/// - validation/subtest_rules.cpp: ValidateSubtests, ScaledScoreIsValid
/// - merge/text_key.cpp: MergeTextKey
/// - merge/generic_key.cpp: MergeGenericKey
/// - model/clsHTDRDD.cpp: all other members
class clsHTDRDD final : public LateBound {
public:
    /// Creates the object members. A failure is reported.
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
    Ref<Object> oState;                           ///< free for the host; emptied by Clear, and so by Read

    /// Resets everything except FileName, and makes the definition a survey. A failure, such as a member that
    /// is an empty reference, passes to the caller; members reset before it stay reset.
    void Clear();

    /// Reads a definition file into this object. A missing file changes nothing; the result is false without
    /// a report. A file that can't be opened, and an archive with several files, change nothing and are
    /// reported. Any other file clears the object first. Returns false without a report if the first line
    /// isn't a section line, and false with a complaint for a broken file; the object then holds the part
    /// before. FileName is set only if the result is true. AfterRead is raised in any case.
    bool Read(TextView sRDDFile);

    /// Saves the definition as a password-protected archive, or as plain text if bEncrypt is false, and sets
    /// FileName. Returns false after a failure, which is reported, and if the user declines to save invalid
    /// test versions; if bVerbose is false, they are saved without a question. True means that a file of that
    /// name exists at the end.
    /// - The target is unchanged until the text is complete in a temporary file. Then an old target is
    ///   deleted or, if its text is single-byte, kept under its name plus ".old".
    /// - The document copies the grade scale and the scaled score of learning objective 1, if it has them,
    ///   even if the save fails.
    /// - This is meant: an archived save, and a failed one, leaves the text in the temporary folder,
    ///   accessible only to its owner.
    bool Save(TextView sRDDFile, bool bEncrypt = true, bool bVerbose = true);

    /// Registers the host object of this thread, for all definitions, until another replaces it; an empty
    /// reference restores Error.log. Returns whether a host is now registered. A second thread needs its own
    /// host object.
    bool SetError(const Ref<LateBound>& oErr);

    Text FileName; ///< path last read or saved
    Text TemplateName;
    Text Description;
    Text Notes;
    HTDReportType ReportType{}; ///< 0 in a new object
    /// The library's own version, "9.1".
    [[nodiscard]] Text Version() const;
    std::int32_t NumPages = 0;

    /// The extra credit in a learning objective: number of questions and possible points. Returns false if
    /// there is none, if the learning objective is missing (both are then 0), and after a failure, which is
    /// reported.
    bool GetExtraCredit(const Variant& lSubtest = 1, std::int32_t* lNumQuestions = nullptr,
                        double* dPossiblePoints = nullptr) const noexcept;

    /// Positions of the questions in a learning objective, with the question names as keys. The learning
    /// objective is given by position or by name (case ignored). Returns an empty reference for an unknown
    /// name, for a value that is neither an integer nor a text, and after a failure, which is reported; a
    /// collection without entries for a missing position.
    [[nodiscard]] Ref<NumberCollection> GetSubtestQuestions(const Variant& vSubtest) const noexcept;

    /// Whether the test versions can be graded together: the identifiers must differ, and the rules of
    /// scrambled or standard versions must hold. A missing or empty type becomes Versions->VType(); a given
    /// type is compared as a number and used instead. Returns false for the first broken rule, with a
    /// complaint, which bVerbose false keeps from the user; lInvalidVersion is written only by rules that
    /// concern one version. False after a failure, which is reported.
    bool ValidateVersions(bool bVerbose = true, std::int32_t* lInvalidVersion = nullptr,
                          Variant* eVersionType = nullptr) const noexcept;

    /// Whether each learning objective, including the overall one, has a question that counts for this type
    /// of report: in a survey a tallied one, otherwise a graded one, in a test also a subjective one. Only a
    /// false result writes lInvalidSubtest, with the position of the first offender; there is no complaint.
    /// False after a failure, which is reported.
    bool ValidateSubtests(std::int32_t* lInvalidSubtest = nullptr) const noexcept;

    /// Whether the key can be used for grading. Returns false for the first broken rule, with a complaint,
    /// which bVerbose false keeps from the user; the positions of the question, the key and the learning
    /// objective are written if the rule concerns them. False after a failure, which is reported.
    bool ValidateKey(bool bVerbose = true, std::int32_t* lInvalidQuestion = nullptr,
                     std::int32_t* lInvalidKey = nullptr,
                     std::int32_t* lInvalidSubtest = nullptr) const noexcept;

    /// Adds the overall learning objective if it is missing; questions without memberships then join it.
    /// Returns false after a failure, which is reported.
    bool AddDefaultSubtest() noexcept;

    /// A new definition with everything that a file carries, created by a save to a temporary file and a read
    /// of it. This is meant: this object then has the temporary file's name, and the copy the former name of
    /// this object. Empty after a failure, which is reported.
    [[nodiscard]] Ref<clsHTDRDD> Copy() noexcept;

    bool CustomHeader = false; ///< whether the host uses the header settings

    /// Saves the header settings to a file of their own, and treats an old file as Save does. Returns false
    /// without a report if there are no settings, and false after a failure, which is reported.
    bool SaveHeader(TextView sHeaderFile) noexcept;

    /// Resets the header settings and loads those of a file. Returns false without a report if the first line
    /// isn't [Header], and false after a failure, such as a missing file, which is reported.
    bool LoadHeader(TextView sHeaderFile) noexcept;

    /// Replaces the answer key by a text key, a single-byte file of correct answers: one key, or a line for
    /// each standard test version, which requires a question in Versions->Question. docs/merging.md describes
    /// the content. Returns true if the new key can be used for grading: it is checked as by ValidateKey and,
    /// with several versions, as by ValidateVersions. Returns false without a report if the file is missing
    /// or has no fields; false after a complaint, which bVerbose false keeps from the user; and false after a
    /// failure, such as an empty file, which is reported.
    /// - Questions keep their response choices and get the question texts of the file, or empty ones.
    ///   Questions without a field are turned off.
    /// - Versions, correct answers and learning objectives are created anew. Only the overall learning
    ///   objective remains, with the benchmark of the former first one.
    /// - A key that is refused as a whole (for its form, for more fields than questions, or for versions
    ///   without a question that identifies them) changes nothing. After any other complaint the part merged
    ///   so far stays, and the old key is lost: keep a Copy to go back to.
    bool MergeTextKey(TextView sKeyFile, bool bVerbose = true) noexcept;

    /// Merges a generic key over this definition, question by question: its graded questions over the graded
    /// ones here, and its subjective ones over the subjective ones. Returns true if the merge is complete;
    /// the key isn't checked. Returns false without a report for an empty reference and for another type of
    /// report; false after a complaint, which bVerbose false keeps from the user; and false after a failure,
    /// which is reported.
    /// - Questions keep their names and response choices and take nearly everything else. Surplus questions
    ///   at the end are turned off; all questions that receive none lose their answers.
    /// - Grade scales, scaled scores, header settings and the memberships of questions come from the
    ///   generic key. This is meant: both definitions share the learning objectives afterwards. Only one test
    ///   version remains.
    /// - If there are too many graded questions, nothing changes; if there are too many subjective ones,
    ///   surplus graded questions are turned off. After any other complaint the part merged so far stays:
    ///   keep a Copy to go back to.
    bool MergeGenericKey(const Ref<clsHTDRDD>& oGenericRDD, bool bVerbose = true) noexcept;

    /// Whether the scaled score of the learning objective at a position can be used; with -1, that of any of
    /// them. Returns false without a report if there is none. False after a failure, which is reported.
    bool ScaledScoreIsValid(std::int32_t lSubtestIndex = -1) noexcept;

    /// The member bound by name: Subtests.
    Variant Get(TextView name) override;

    Event AfterRead; ///< raised at the end of every Read

protected:
    ~clsHTDRDD() override;
};

} // namespace htdrdd
