"""Merges a text key into a definition and saves it: client.py LIBRARY DEFINITION TEXTKEY OUT"""

import sys

import htdrdd91
from htdrdd91 import Ref


class Host(htdrdd91.Dispatch):
    """Prints the component's reports and messages."""

    def __init__(self):
        self.Silent = False

    def RaiseError(self, number, kind, description, location, title, *unused):
        if not self.Silent:
            print(f"{title.value or location.value}: {description.value}", file=sys.stderr)
        return 0

    def MsgBoxEx(self, caption, message, flags, owner, *buttons):
        print(f"{caption.value}: {message.value} [{buttons[0].value}]", file=sys.stderr)
        return 1


def show(rdd):
    versions = list(rdd.Versions.Answers) or ["key"]
    print(f"{rdd.TemplateName}, library {rdd.Version}: {rdd.Questions.Count} questions")
    position = rdd.Questions.NextGraded()
    while position:
        question = rdd.Questions.Item(position)
        answers = ", ".join(f"{version} {answer}" for version, answer in zip(versions, question.CorrectAnswers))
        print(f"  {question.QuestionName} of {question.AnswerValues.AsString(sDelimiter=' ')}: {answers}")
        position = rdd.Questions.NextGraded(position)


def validate(rdd):
    """Whether the key can be used for grading; if not, prints the question that breaks a rule."""
    position = Ref(-1)
    valid = rdd.ValidateKey(bVerbose=True, lInvalidQuestion=position)
    if not valid and position.value > 0:
        print(f"  look at {rdd.Questions.Item(position.value).QuestionName}", file=sys.stderr)
    return valid


def main(library, definition, text_key, out):
    htdrdd91.load(library)
    rdd = htdrdd91.create("clsHTDRDD")
    rdd.SetError(Host())
    disconnect = rdd.connect(AfterRead=lambda: print(f"{definition}: reading has ended"))
    try:
        if not rdd.Read(definition):
            return f"{definition} couldn't be read"
        show(rdd)
        if not (validate(rdd) and rdd.MergeTextKey(text_key) and rdd.Save(out, bEncrypt=False)):
            return 1
        print(f"Saved as {rdd.FileName}")
        show(rdd)
        return 0
    finally:
        disconnect()
        rdd.SetError(htdrdd91.NOTHING)


if __name__ == "__main__":
    if len(sys.argv) != 5:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
