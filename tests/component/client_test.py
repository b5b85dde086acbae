"""A host in another language: Python calls the component by name."""

import gc
import re
import subprocess
import sys
import threading
import unittest
from ctypes import byref, c_int32, c_void_p

import htdrdd91
from htdrdd91 import DISPATCH_INTERFACE, FACTORY_INTERFACE, MISSING, NOTHING, ComponentError, Object, Ref, create, guid

from hosts import CLASSES, COMPONENT, HOST, LIBRARY, OUT, SAMPLES, SOURCE, Host, definition, face
from variants import I2, VARIANT

CAN_UNLOAD, IN_USE, NOT_AVAILABLE = 0, 1, 0x80040111


def refused(call, *arguments):
    """The number and text of the failure that a call raises; else its result."""
    try:
        return call(*arguments)
    except ComponentError as failure:
        return failure.args


class Client(unittest.TestCase):
    def setUp(self):
        create("clsHTDRDD").SetError(HOST)
        HOST.reports.clear()

    def tearDown(self):
        create("clsHTDRDD").SetError(NOTHING)
        gc.collect()
        self.assertEqual((LIBRARY.DllCanUnloadNow(), htdrdd91.living), (CAN_UNLOAD, {}))

    def test_example_merges_and_saves(self):
        command = [sys.executable, SOURCE + "/examples/python/client.py", COMPONENT, SAMPLES + "quiz.rdd"]
        run = subprocess.run([*command, SAMPLES + "quiz.key", OUT + "merged"], capture_output=True, text=True)
        self.assertEqual((run.returncode, run.stderr), (0, ""))
        self.assertIn("Q2 of A B C D: Red (A,D), Blue (B,C)", run.stdout)
        self.assertIn("Q2 of A B C D: Red (B,D), Blue (A,C)", run.stdout)
        with open(OUT + "merged", encoding="utf-16") as saved:
            self.assertIn("CorrectAnswer=(B,D)\t(A,C)\n", saved.read())

    def test_example_shows_what_it_is_told(self):
        with open(SAMPLES + "quiz.rdd", "rb") as whole, open(OUT + "cut.rdd", "wb") as cut:
            cut.write(whole.read()[:6000])
        command = [sys.executable, SOURCE + "/examples/python/client.py", COMPONENT, OUT + "cut.rdd", "", ""]
        run = subprocess.run(command, capture_output=True, text=True)
        self.assertEqual(run.returncode, 1)
        self.assertRegex(run.stderr, r"^Invalid File: An error occurred .* \[&OK\]\n.*couldn't be read\n$")

    def test_texts_and_lists(self):
        rdd, answers, text = create("clsHTDRDD"), create("clsHTDRDDStrings"), "a\0b\ud800 – \U0001F600"
        rdd.Notes = text
        self.assertEqual(rdd.nOTES, text)
        self.assertIsNone(answers.AsArray().lower)
        self.assertTrue(answers.AddArray(["b", "", "a"]))
        self.assertEqual((list(answers), answers(2), answers.AsArray().lower), (["b", "", "a"], "", 1))
        answers.put("Item", 2, "c")
        self.assertEqual((answers.AsString(), len(list(zip(answers, answers)))), ("b\tc\ta", 3))
        self.assertRaises(ComponentError, list, rdd.Questions)

    def test_arguments(self):
        rdd, scales, key = definition(), create("clsHTDGradeScaleManager"), Ref("  Math ")
        count, points, index = Ref(5, VARIANT), Ref(5, VARIANT), Ref(0, I2)
        self.assertTrue(rdd.GetExtraCredit(dPossiblePoints=points) and rdd.GetExtraCredit(MISSING, count))
        self.assertEqual((count.value, points.value), (1, 2.0))
        self.assertEqual((rdd.Questions.Item(3).HighCode(index), index.value), (4.0, 4))
        rdd.Questions.Item(3).SubjectiveField = True
        question, version = Ref(-1), Ref(-1)
        self.assertFalse(rdd.ValidateKey(False, lInvalidKey=version, LINVALIDQUESTION=question))
        self.assertEqual((question.value, version.value), (3, -1))
        scales.Add(key, rdd.GradeScale)
        self.assertEqual((key.value, scales.Keys()), ("Math", ["Math"]))

    def test_identity(self):
        rdd, other = definition(), create("clsHTDRDD")
        questions = rdd.Questions
        self.assertEqual(face(rdd, "clsHTDRDD"), rdd)
        self.assertEqual((questions, questions.Item(1)), (rdd.Questions, rdd.Questions.Item(1)))
        self.assertNotEqual(questions.Item(1), questions.Item(2))
        other.Questions, other.oState, rdd = questions, HOST, None
        self.assertEqual((other.Questions, questions.Item(2).QuestionName), (questions, "Q1"))
        self.assertIs(other.oState, HOST)
        other.Clear()
        self.assertIsNone(other.oState)
        self.assertEqual(htdrdd91.global_object("clsHTDRDD"), htdrdd91.global_object("clsHTDRDD"))

    def test_dictionary_and_collection(self):
        rdd = definition()
        header, numbers = rdd.Header, rdd.GetSubtestQuestions("overall")
        header.Add("Extra", "x")
        self.assertEqual((header.Count, header("EXTRA"), header.Keys()[31]), (32, "x", "Extra"))
        header.Remove("extra")
        self.assertEqual((len(header.Items()), header.Exists("extra"), header), (31, False, rdd.Header))
        self.assertEqual((numbers.Count, numbers("q5"), list(numbers)), (6, 6, [1, 2, 3, 4, 5, 6]))

    def test_refused_classes(self):
        for name, listed in CLASSES.items():
            if listed.identifier.startswith("("):
                continue
            identifier, expected = guid(listed.identifier), (0, True) if listed.is_creatable else (NOT_AVAILABLE, False)
            factory, made = c_void_p(1), c_void_p(1)
            result = LIBRARY.DllGetClassObject(identifier, FACTORY_INTERFACE, byref(factory)) & 0xFFFFFFFF
            self.assertEqual((result, bool(factory)), expected, name)
            text = (name + "\0").encode("utf-16-le")
            result = LIBRARY.HTDRddCreateObject(text, DISPATCH_INTERFACE, byref(made)) & 0xFFFFFFFF
            self.assertEqual((result, bool(made)), expected, name)
            factory, made = (pointer and Object(pointer.value) for pointer in (factory, made))

    def test_failures(self):
        sequence, rdd = create("clsHTDRDDSequence"), create("clsHTDRDD")
        self.assertEqual(refused(sequence.Remove, 9), (9, "Subscript out of range"))
        slots = face(sequence, "clsHTDRDDSequence")
        self.assertEqual(slots._slot(9, (c_int32,), 9) & 0xFFFFFFFF, htdrdd91.RAISED | 9)
        self.assertEqual(refused(getattr, rdd, "Nothing")[0], htdrdd91.UNKNOWN_NAME)
        self.assertEqual(refused(rdd.Read)[0], htdrdd91.NOT_OPTIONAL)
        self.assertEqual(refused(rdd.Clear, 1)[0], htdrdd91.WRONG_COUNT)
        self.assertEqual(refused(sequence.Add, "no number")[0], 0x80020005)
        self.assertEqual(refused(rdd._invoke, htdrdd91.GET, rdd._identifiers("Clear"))[0], htdrdd91.MEMBER_NOT_FOUND)
        rdd.Questions.Remove(9)
        self.assertEqual([argument.value for argument in HOST.reports[0]][:3], [9, 0, "Subscript out of range"])

    def test_host_and_handlers_call_back_and_let_go(self):
        class Reentrant(Host):
            def RaiseError(self, *arguments):
                self.reports.append(rdd.Questions.Count)
                rdd.SetError(NOTHING)

        rdd, host, calls, scales = definition(), Reentrant(), [], create("clsHTDGradeScaleManager")
        rdd.SetError(host)
        rdd.Questions.Remove(99)
        self.assertEqual((host.reports, host._count), ([6], 0))
        held = [create("clsHTDRDD")]
        stop = held[0].connect(AfterRead=lambda: (calls.append(held[0].TemplateName), held.clear()))
        self.assertTrue(held[0].Read(SAMPLES + "quiz.rdd"))
        self.assertEqual((calls, held), (["Fractions quiz"], []))
        stop()
        key = Ref(" x ")
        stop = scales.connect(Reload=lambda: calls.append((scales.Count, scales.Keys())))
        scales.Add(key, rdd.GradeScale)
        stop()
        scales.Remove(key)
        self.assertEqual((key.value, calls[1:]), ("x", [(1, ["x"])]))
        self.assertEqual(refused(lambda: scales.connect(AfterRead=print))[0], htdrdd91.NO_SUCH_EVENT)

    def test_threads_have_their_own_hosts(self):
        def work():
            rdd = create("clsHTDRDD")
            rdd.SetError(own)
            rdd.Questions.Remove(2)
            rdd.SetError(NOTHING)

        own = Host()
        thread = threading.Thread(target=work)
        thread.start()
        thread.join()
        create("clsHTDRDD").Questions.Remove(3)
        self.assertEqual((len(own.reports), len(HOST.reports)), (1, 1))

    def test_exports_what_hosts_look_up_and_nothing_else(self):
        with open(SOURCE + "/src/htdrdd91/component/entry/exports.map", encoding="utf-8") as file:
            listed = re.findall(r"(\w+);", file.read())
        command = ["nm", "-D", "--defined-only", "--format=posix", COMPONENT]
        lines = subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()
        self.assertEqual(sorted(line.split()[0] for line in lines), sorted(listed))

    def test_counts_down(self):
        factory = c_void_p()
        LIBRARY.DllGetClassObject(htdrdd91.CLASSES["clsHTDRDD"], FACTORY_INTERFACE, byref(factory))
        factory, states = Object(factory.value), []
        for lock in (1, 0):
            factory._slot(4, (c_int32,), lock)
            states.append(LIBRARY.DllCanUnloadNow())
        questions = create("clsHTDRDD").Questions
        states.append(LIBRARY.DllCanUnloadNow())
        del questions
        self.assertEqual([*states, LIBRARY.DllCanUnloadNow()], [IN_USE, CAN_UNLOAD, IN_USE, CAN_UNLOAD])


if __name__ == "__main__":
    unittest.main()
