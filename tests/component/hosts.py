"""Shared by the host tests: the component, objects of it, and the listing of its interfaces."""

import collections
import os
import re
import shutil
import tempfile

import htdrdd91
from htdrdd91 import Array, Dispatch, create
from variants import BOOL

SOURCE, COMPONENT = os.environ["HTDRDD_SOURCE_DIR"], os.environ["HTDRDD_COMPONENT"]
LIBRARY = htdrdd91.load(COMPONENT)
FOLDER = tempfile.TemporaryDirectory()
OUT = FOLDER.name + "/"
SAMPLES = shutil.copytree(SOURCE + "/samples", OUT + "samples") + "/"

Class = collections.namedtuple("Class", "identifier interface is_creatable members")
Member = collections.namedtuple("Member", "slot identifier direction name parameters result")


def listed():
    """The classes of docs/interfaces.txt, by name."""
    with open(SOURCE + "/docs/interfaces.txt", encoding="utf-8") as file:
        for line in file:
            if match := re.match(r"class (\w+) (\S+|\(.*?\)) (created)?", line):
                name, identifier, is_creatable = match.groups()
            elif match := re.match(r"interface \w+ (\S+):", line):
                members = []
                yield name, Class(identifier, match[1], bool(is_creatable), members)
            elif match := re.match(r" +(\d+) +(-?\d+)  (\w+) +(\w+)\((.*?)\)(?: -> (\S+))?(?: !)?$", line):
                parameters = re.findall(r"\[?([\w()]+\*?&?) (\w+)", match[5])
                members.append(Member(int(match[1]), int(match[2]), match[3], match[4], parameters, match[6]))


CLASSES = dict(listed())


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


def definition(name="quiz.rdd"):
    return filled("clsHTDRDD", ("Read", SAMPLES + name))


def scale():
    return filled("clsHTDRDDGradeScale", ("AddDelimitedStrings", "A,B,F", "90,80,0", ","), ScaleName="Norm")


def memberships():
    made = create("clsHTDRDDQuestion").Subtests
    made.AddArray(Array([True, False, True], BOOL))
    return made


REACHED = {"clsHTDRDDQuestions": lambda: create("clsHTDRDD").Questions,
           "clsHTDRDDVersions": lambda: create("clsHTDRDD").Versions,
           "clsHTDRDDSequences": lambda: create("clsHTDRDD").Versions.Sequences,
           "clsHTDRDDSubtests": lambda: create("clsHTDRDD").Subtests,
           "clsHTDRDDQuestionSubtests": memberships,
           "clsHTDRDDGradeScaleItem": lambda: scale().Item(1),
           "Dictionary": lambda: create("clsHTDRDD").Header,
           "NumberCollection": lambda: definition().GetSubtestQuestions(1)}


def fresh(name):
    """A new object of a class; None if no member of another class returns one."""
    return create(name) if CLASSES[name].is_creatable else REACHED[name]() if name in REACHED else None


def face(made, name):
    """The interface of an object that has the listed slots."""
    return made._query(htdrdd91.guid(CLASSES[name].interface))
