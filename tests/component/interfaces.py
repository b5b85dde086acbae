"""Every member of every interface that hosts can reach, in the order of the slots.

A signature has a code for each argument, "&" before one by reference, and behind ">" the result: S text, L, H and D
numbers of 32 bits, of 16 and with a fraction, B boolean, V any value, O object, U interface, A, N and F arrays of text,
numbers and booleans. A method comes with a call on a fresh object: its arguments; what it `gives`, which is the result
and then what the references hold; what holds of the object and the arguments `then`; what is done `first`.
"""

import collections
import functools
import os
import shutil
import tempfile

from htdrdd91 import ENUMERATOR_INTERFACE, MISSING, NOTHING, Array, Dispatch, create
from variants import BOOL, BSTR, I4

FOLDER = tempfile.TemporaryDirectory()
OUT = FOLDER.name + "/"
SAMPLES = shutil.copytree(os.environ["HTDRDD_SOURCE_DIR"] + "/samples", OUT + "samples") + "/"

Member = collections.namedtuple("Member", "form name signature arguments gives then first", defaults=[None] * 5)


def properties(text):
    """Members to read and write, told as "code name name, code name"; the code of an object is its class."""
    return [Member("property", name, code) for code, *names in map(str.split, text.split(",")) for name in names]


def member(form, told, *arguments, gives=None, then=lambda o, a: True, first=lambda o: None):
    name, _, signature = told.partition(" ")
    return Member(form, name, signature, arguments, gives, then, first)


do, get, put = (functools.partial(member, form) for form in ("method", "get", "put"))


def holds(text):
    return lambda o, a: o.AsString(",") == text


def emptied(o, a):
    return o.Count == 0


class Host(Dispatch):
    def __init__(self):
        self.Silent, self.reports = False, []

    def RaiseError(self, *arguments):
        self.reports.append(arguments)


HOST = Host()


def filled(name, *calls, **values):
    made = create(name)
    for key, value in values.items():
        setattr(made, key, value)
    for call, *arguments in calls:
        made.call(call, *arguments)
    return made


def text(path, encoding="utf-8"):
    with open(path, encoding=encoding) as file:
        return file.read()


def new(name):
    return lambda: create(name)


def definition(name="quiz.rdd"):
    return filled("clsHTDRDD", ("Read", SAMPLES + name))


def questions():
    """Each class of questions with another number of members, and with another one first."""
    made = create("clsHTDRDD").Questions
    classes = {"IncludeGrade": "23456", "PartialCredit": "3789", "ExtraCredit": "456", "SubjectiveField": "78",
               "IncludeTally": "9"}
    for position in "123456789":
        flags = {flag: True for flag, positions in classes.items() if position in positions}
        made.Add(filled("clsHTDRDDQuestion", QuestionName="Q" + position, **flags))
    return made


def scale():
    return filled("clsHTDRDDGradeScale", ("AddDelimitedStrings", "A,B,F", "90,80,0", ","), ScaleName="Norm")


def score():
    made = filled("clsHTDRDDScaledScore", ScaledScoreName="Norm", ScaledScoreValues=2)
    made.DB.Table = "norms"
    return made


def memberships():
    made = create("clsHTDRDDQuestion").Subtests
    made.AddArray(Array([True, False, True], BOOL))
    return made


def subtests():
    rdd = create("clsHTDRDD")
    for name in ("Overall", "Genetics"):
        rdd.Subtests.Add(filled("clsHTDRDDSubtest", SubtestName=name))
    return rdd.Subtests


def save_header(o):
    o.Header.put("Item", "_R1C1_FLD_TEXT", "Biology")
    o.SaveHeader(OUT + "header")
    o.Clear()


def holding(name, entry):
    return lambda: filled(name, ("Add", "Math", entry()), ("Add", "Art", entry()))


def library(entry, name, record):
    """What the two managers have in common."""
    return [
        do("Add &S&O", " new ", entry, gives=lambda r: r[0] == "new",
           then=lambda o, a: o.Keys() == ["Math", "Art", "new"]),
        do("Remove &S", "math", gives="math", then=lambda o, a: o.Keys() == ["Art"]), get("Count >L", gives=2),
        do("Reset", then=emptied), get("Exists &V>B", "ART", gives=[True, "ART"], then=lambda o, a: o.Count == 2),
        get("Item V>O", "Art", gives=lambda r: getattr(r, name) == "Norm"),
        put("Key VV", "Math", "Maths", then=lambda o, a: o.Keys() == ["Maths", "Art"]),
        do("Keys >V", gives=lambda r: r == ["Math", "Art"] and r.lower == 0),
        do("SaveToString >S", gives=lambda r: r == record() + "\v" + record()),
        do("LoadFromString S>B", record, gives=True, then=lambda o, a: o.Keys() == ["Norm"]),
    ]


# Class, interface, a fresh object, members.
INTERFACES = {
    "clsHTDRDD": ("FE91C6A3-6D62-4CF3-9E16-FB01B1A18596", "32184884-5C37-4141-8AFB-E37707660BC5", definition, [
        *properties("clsHTDRDDQuestions Questions, clsHTDRDDVersions Versions, clsHTDRDDSubtests Subtests"),
        *properties("clsHTDRDDGradeScale GradeScale, clsHTDRDDScaledScore ScaledScore"),
        *properties("clsHTDRDDGradeScale SubtestGradeScale, clsHTDRDDScaledScore SubtestScaledScore"),
        *properties("Header Header, clsHTDRDDStrings oState"),
        do("Clear", then=lambda o, a: (o.ReportType, o.FileName) == (2, SAMPLES + "quiz.rdd")),
        do("Read S>B", SAMPLES + "exam.rdd", gives=True, then=lambda o, a: o.Questions.Count == 50),
        do("Save SBB>B", OUT + "saved", False, False, gives=True,
           then=lambda o, a: "[Report]" in text(OUT + "saved", "utf-16")),
        do("SetError &O>B", HOST, gives=[True, HOST],
           then=lambda o, a: HOST.reports.clear() or o.Questions.Remove(9) or HOST.reports,
           first=lambda o: o.SetError(NOTHING)),
        *properties("S FileName TemplateName Description Notes, L ReportType"), get("Version >S", gives="9.1"),
        *properties("L NumPages"), do("Copy >O", gives=lambda r: r.TemplateName == "Fractions quiz"),
        do("GetExtraCredit V&V&V>B", 1, 0, 0, gives=[True, 1, 2.0]),
        do("GetSubtestQuestions V>O", 1, gives=lambda r: r.Count == 6 and r.Item("Q5") == 6),
        do("ValidateVersions B&L&V>B", False, -7, None, gives=[True, -7, 1]),
        do("ValidateSubtests &L>B", -7, gives=[False, 1], first=lambda o: o.put("ReportType", 2)),
        do("ValidateKey B&L&L&L>B", False, -7, -8, -9, gives=[False, 2, 2, -9],
           first=lambda o: o.Questions.Item(2).CorrectAnswers.put("Item", 2, "")),
        do("AddDefaultSubtest >B", gives=True, then=lambda o, a: o.Subtests.Count == 1,
           first=lambda o: o.Subtests.RemoveAll()),
        *properties("B CustomHeader"),
        do("SaveHeader S>B", OUT + "cells", gives=True, then=lambda o, a: "COLS=3" in text(OUT + "cells", "utf-16")),
        do("LoadHeader S>B", OUT + "header", gives=True,
           then=lambda o, a: (o.Header.Item("_r1c1_fld_text"), o.FileName) == ("Biology", SAMPLES + "quiz.rdd"),
           first=save_header),
        do("MergeTextKey SB>B", SAMPLES + "quiz.key", False, gives=True,
           then=lambda o, a: o.Questions.Item(2).CorrectAnswers(1) == "A"),
        do("MergeGenericKey &OB>B", lambda: definition("generic.rdd"), False, gives=lambda r: r[0],
           then=lambda o, a: o.Subtests.Count == 1, first=lambda o: o.Read(SAMPLES + "exam.rdd")),
        do("ScaledScoreIsValid L>B", 1, gives=True, first=lambda o: o.Read(SAMPLES + "exam.rdd")),
    ]),
    "clsHTDRDDQuestions": ("F1357543-72C6-4B29-BD1C-4B14B5AF3C5B", "3B29174A-FEB2-4EF8-B007-A17FC7C9FBFA", questions, [
        get("Count >L", gives=9), do("NumGraded >L", gives=5), do("NextGraded L>L", 1, gives=2),
        do("NumPartialCredit >L", gives=4), do("NumExtraCredit >L", gives=3), do("NextPartialCredit L>L", 1, gives=3),
        do("NextExtraCredit L>L", 1, gives=4), do("NumSubjective >L", gives=2), do("NextSubjective L>L", 1, gives=7),
        do("NumTallied >L", gives=1), do("NextTallied L>L", 1, gives=9),
        do("Add OVVV", new("clsHTDRDDQuestion"), "k", 2, MISSING, then=lambda o, a: o.Item(2) == o.Item("K") == a[0]),
        do("Remove V", 1, then=lambda o, a: o.Item(1).QuestionName == "Q2"), do("RemoveAll", then=emptied),
        get("Item V>O", 4, gives=lambda r: r.QuestionName == "Q4"), get("Exists V>B", 10, gives=False),
        do("Find SL>L", "q8", 1, gives=8),
    ]),
    "clsHTDRDDQuestion": ("8355A573-AA75-4427-84E6-F0B9FF824898", "85DE3C62-95CB-406E-96A3-B1E219E7F728",
                          new("clsHTDRDDQuestion"), [
        *properties("clsHTDRDDStrings AnswerValues AnswerCodes, clsHTDRDDQuestionSubtests Subtests"),
        *properties("clsHTDRDDStrings CorrectAnswers CorrectCodes CorrectAnswerPoints, S QuestionName QuestionText"),
        *properties("B IncludeGrade IncludeTally, L DataType, B ExtraCredit PartialCredit, S BlankText, D BlankValue"),
        *properties("S MultipleText, D MultipleValue, S MissingText, D MissingValue, L NAValue, H MultiplesPermitted"),
        *properties("B IDField SubjectiveField, L NumCorrect, B CorrectAnd, D CorrectPoints IncorrectPoints"),
        *properties("D NoResponsePoints SubjectivePoints MinValue MaxValue Benchmark"),
        *properties("S Difficulty Reference Topic Keywords Miscellaneous Notes"),
        do("HighCode &H>D", 0, gives=[5.0, 2], first=lambda o: o.AnswerCodes.AddDelimitedString("1,5,2", ",")),
    ]),
    "clsHTDRDDVersions": ("7E60A23E-98CE-44B7-B36E-506CA3219A19", "428698B5-66C7-44CE-82DB-4D7334F1CACB",
                          lambda: create("clsHTDRDD").Versions, [
        *properties("clsHTDRDDSequences Sequences, clsHTDRDDStrings Answers, L Question"),
        get("VType >L", gives=1, first=lambda o: o.Answers.AddDelimitedString("x\ty") and o.put("Question", 3)),
    ]),
    "clsHTDRDDSequences": ("9B35BF8C-DCF7-4EF3-BDBD-55A512FD7C3C", "38FE1A60-0E43-4F8E-88EB-E622AF435DD1",
                           lambda: create("clsHTDRDD").Versions.Sequences, [
        get("Count >L", gives=1, first=lambda o: o.AddDefault(3)),
        do("Add OVVV", new("clsHTDRDDSequence"), "k", MISSING, MISSING, then=lambda o, a: o.Item("K") == a[0]),
        do("AddDefault L>B", 3, gives=True, then=lambda o, a: o.Item(1).AsString(",") == "1,2,3"),
        do("Remove V", 1, then=emptied, first=lambda o: o.AddDefault(3)),
        do("RemoveAll", then=emptied, first=lambda o: o.AddDefault(3)),
        get("Item V>O", 1, gives=lambda r: r.Count == 3, first=lambda o: o.AddDefault(3)),
        get("Exists V>B", 1, gives=True, first=lambda o: o.AddDefault(3)),
    ]),
    "clsHTDRDDSequence": ("2BFC11CD-537D-4745-BD71-2E6A3CBBA2A3", "D8D40FF5-C611-4DE7-B0EC-22213DA63B38",
                          lambda: filled("clsHTDRDDSequence", ("AddDelimitedString", "30,10,20", ",")), [
        get("Count >L", gives=3), do("Add LVVV", 7, MISSING, MISSING, 1, then=holds("30,7,10,20")),
        do("Remove L", 1, then=holds("10,20")), do("RemoveAll", then=emptied), get("Item L>L", 2, gives=10),
        put("Item LL", 2, 7, then=holds("30,7,20")), get("Exists L>B", 3, gives=True),
        do("AsArray L>N", 5, gives=lambda r: r == [30, 10, 20] and r.lower == 5),
        do("AsString S>S", "-", gives="30-10-20"),
        do("AddArray &N", Array([8, 9], I4), gives=[8, 9], then=holds("30,10,20,8,9")),
        do("AddDelimitedString SS", "8;9", ";", then=holds("30,10,20,8,9")),
    ]),
    "clsHTDRDDSubtests": ("31DF064B-A1DB-4CD1-A0FF-1DE83690B31D", "731F64F9-FC32-400F-BF37-474B8DE887A7", subtests, [
        get("Count >L", gives=2),
        do("Add OVVV", new("clsHTDRDDSubtest"), "k", 1, MISSING, then=lambda o, a: o.Item("K") == o.Item(1) == a[0]),
        do("Remove V", 1, then=lambda o, a: o.Item(1).SubtestName == "Genetics"), do("RemoveAll", then=emptied),
        get("Item V>O", 2, gives=lambda r: r.SubtestName == "Genetics"), get("Exists V>B", 3, gives=False),
        do("Find S>L", "Genetics", gives=2),
    ]),
    "clsHTDRDDSubtest": ("204401FC-242A-41C8-B11A-EC53F2CF051E", "90921709-22C3-4080-8F02-F16526B26986",
                         new("clsHTDRDDSubtest"), [
        *properties("clsHTDRDDGradeScale GradeScale, clsHTDRDDScaledScore ScaledScore, D Benchmark"),
        *properties("S SubtestName Description"),
    ]),
    "clsHTDRDDQuestionSubtests": ("C0351E7A-DE97-472C-8196-B20D7D82E361", "C83770CC-9BD9-4595-94FD-DE5175C86C02",
                                  memberships, [
        get("Count >L", gives=3), do("Add V", True, then=lambda o, a: o.Item(4).Include),
        do("Remove L", 2, then=lambda o, a: o.AsArray() == [True, True]), do("RemoveAll", then=emptied),
        get("Item L>O", 1, gives=lambda r: r.Include),
        put("Item LO", 1, new("clsHTDRDDQuestionSubtest"), then=lambda o, a: o.Item(1) == a[1] and o.Count == 3),
        get("Exists L>B", 3, gives=True),
        do("AsArray L>F", 5, gives=lambda r: r == [True, False, True] and r.lower == 5),
        do("AddArray &F", Array([True], BOOL), gives=[True],
           then=lambda o, a: o.AsArray() == [True, False, True, True]),
    ]),
    "clsHTDRDDQuestionSubtest": ("CC4456B9-067F-44CC-9BD2-535C02636F46", "B7093237-3942-4B7B-8BAF-523A356E3964",
                                 new("clsHTDRDDQuestionSubtest"), properties("B Include, D Weight")),
    "clsHTDRDDStrings": ("83F4BA80-C95A-4F02-BDB1-167E1C163068", "30FC09DB-1A1A-428B-BB93-7DD18878622B",
                         lambda: filled("clsHTDRDDStrings", ("AddDelimitedString", "b,a,C", ",")), [
        do("NewEnum >U", gives=lambda r: r._query(ENUMERATOR_INTERFACE)), get("Count >L", gives=3),
        do("Add SV>B", "d", "key", gives=True, then=lambda o, a: o("KEY") == "d"),
        do("AddArray &A>B", Array(["x", "y"], BSTR, 4), gives=[True, ["x", "y"]], then=holds("b,a,C,x,y")),
        do("AddDelimitedString SS>B", "x;y", ";", gives=True, then=holds("b,a,C,x,y")),
        do("Remove V>B", "A", gives=True, then=holds("b,C")), do("RemoveAll >B", gives=True, then=emptied),
        get("Item V>S", 2, gives="a"), put("Item VS", 2, "x", then=holds("b,x,C")), do("Locate SL>L", "c", 1, gives=3),
        do("Exists V>B", "c", gives=True, then=lambda o, a: o.Count == 3), do("AsString S>S", "+", gives="b+a+C"),
        do("AsArray >A", gives=lambda r: r == ["b", "a", "C"] and r.lower == 1),
        do("Copy >O", gives=lambda r: r.AsString(",") == "b,a,C"), *properties("L MaxLength"),
        do("SortAscending >B", gives=True, then=holds("C,a,b")),
        do("SortDescending >B", gives=True, then=holds("b,a,C"), first=lambda o: o.SortAscending()),
    ]),
    "clsHTDRDDGradeScale": ("9062B76F-D304-424A-A438-76CF3CACBDBA", "83A78F39-2175-4921-89B7-37964E0CC2D5", scale, [
        *properties("S ScaleName"), get("Count >L", gives=3),
        do("Add OVVV", lambda: scale().Item(3), "k", MISSING, 1, then=lambda o, a: o.Item("K") == o.Item(2) == a[0]),
        do("AddArrays &A&A>B", Array(["X"], BSTR), Array(["5"], BSTR), gives=[True, ["X"], ["5"]],
           then=lambda o, a: o.AsString(True, ",") == "90,80,0,5"),
        do("AddDelimitedStrings SSS>B", "X", "5", ",", gives=True,
           then=lambda o, a: o.AsString(True, ",") == "90,80,0,5"),
        do("Remove V", 1, then=lambda o, a: o.AsString(False, ",") == "B,F"), do("RemoveAll", then=emptied),
        get("Item V>O", 2, gives=lambda r: r.Grade == "B"), get("Exists V>B", 4, gives=False),
        do("AsArray BL>A", True, 7, gives=lambda r: r == ["90", "80", "0"] and r.lower == 7),
        do("AsString BS>S", True, "+", gives="90+80+0"), do("Copy >O", gives=lambda r: r.ScaleName == "Norm"),
        do("Validate B&L>B", False, -7, gives=[False, 2], first=lambda o: o.Item(3).put("StartValue", "85")),
        do("CalculateGrade DH>S", 89.5, 0, gives="A"),
        do("Export S>B", OUT + "scale", gives=True,
           then=lambda o, a: create("clsHTDRDDGradeScale").Import(OUT + "scale")),
        do("Import S>B", SAMPLES + "letters.scale.xml", gives=True, then=lambda o, a: o.Count == 5),
    ]),
    "clsHTDRDDGradeScaleItem": ("3B2B1C2C-8D99-4F5D-B360-A74443AC6948", "76C30EF8-DBE1-455C-AA02-F0F87B4CE93E",
                                lambda: scale().Item(1), properties("S Grade StartValue")),
    "clsHTDRDDScaledScore": ("A4436691-7BFC-47E2-B84C-86BBD469C8DC", "9767CB76-36F3-476A-A77F-812D82A69FC2", score, [
        *properties("S LearningObjectivePrimary LearningObjectiveSecondary, H Precision, S ScaledScoreName"),
        *properties("L ScaledScoreValues ScaledScoreCriteriaPrimary ScaledScoreCriteriaSecondary"),
        *properties("clsHTDRDDScaledScoreDB DB"), do("Clear", then=lambda o, a: o.ScaledScoreName == o.DB.Table == ""),
        do("Copy >O", gives=lambda r: r.DB.Table == "norms"),
        do("IsValid &VBB>B", lambda: definition("exam.rdd"), False, False, gives=lambda r: r[0],
           first=lambda o: o.FromString(definition("exam.rdd").Subtests.Item(1).ScaledScore.ToString())),
        do("ToString S>S", "+", gives=lambda r: r.startswith("ScaledScoreName=Norm+")),
        do("FromString SS>B", "ScaledScoreName=x;y", ";", gives=True, then=lambda o, a: o.ScaledScoreName == "x"),
        do("Export S>B", OUT + "score", gives=True, then=lambda o, a: "Norm" in text(OUT + "score")),
        do("Import S>B", OUT + "other", gives=True, then=lambda o, a: o.ScaledScoreName == "Other",
           first=lambda o: filled("clsHTDRDDScaledScore", ("Export", OUT + "other"), ScaledScoreName="Other")),
    ]),
    "clsHTDRDDScaledScoreDB": ("18037C1A-459B-4005-B757-D0364DE448DD", "6634B784-FEFE-4B29-8C67-9ABD59ABCCD8",
                               lambda: score().DB, [
        *properties("S Name Catalog Table MinFieldPrimary MaxFieldPrimary MinFieldSecondary MaxFieldSecondary"),
        *properties("S ScoreField ScoreGrade, H DBType, S Connect, B DirectoryBased DSNBased"),
        *properties("S DSNName User Password, B Valid"), do("Reset", then=lambda o, a: o.Table == ""),
        do("Class_Initialize", then=lambda o, a: o.Table == ""),
    ]),
    "clsHTDGradeScaleManager": ("DEF954C4-AA97-4154-B42E-BA06C25F3A2C", "D5D713A8-F7AF-4793-BAF2-1615D88B748E",
                                holding("clsHTDGradeScaleManager", scale), [
        *library(scale, "ScaleName", lambda: "Norm\t90&A\t80&B\t0&F"),
        do("ClipToScale SS>O", "New", "X\t50", gives=lambda r: (r.ScaleName, r.AsString(True)) == ("New", "50")),
        do("ScaleToClip &O>S", scale, gives=lambda r: r[0] == "A\t90\r\nB\t80\r\nF\t0"),
        do("CalcPercentScore DD>D", 1.0, 4.0, gives=25.0), do("CalcTotalScore DD>D", 50.0, 4.0, gives=2.0),
        do("CalcTotalPossibleScore &OH>D", definition, 1, gives=lambda r: r[0] == 12.0),
    ]),
    "clsHTDScaledScoreManager": ("CB9B9F9F-ECE9-4B6D-A68B-3133B4EFAD70", "96535585-7FB9-4FAA-9152-C438D1E29804",
                                 holding("clsHTDScaledScoreManager", score),
                                 library(score, "ScaledScoreName", lambda: score().ToString())),
}
