"""The component exports what hosts look up in it, and nothing else."""

import os
import subprocess
import unittest

EXPORTED = """
    DllCanUnloadNow DllGetClassObject DllRegisterServer DllUnregisterServer HTDRddCreateObject HTDRddGlobalObject
    SysAllocString SysAllocStringLen SysFreeString SysStringLen
    SafeArrayAccessData SafeArrayCopy SafeArrayCreate SafeArrayDestroy SafeArrayGetDim SafeArrayGetElement
    SafeArrayGetLBound SafeArrayGetUBound SafeArrayGetVartype SafeArrayPutElement SafeArrayUnaccessData
    VariantClear VariantCopy VariantInit GetErrorInfo SetErrorInfo
"""


class Exports(unittest.TestCase):
    def test_list(self):
        command = ["nm", "-D", "--defined-only", "--format=posix", os.environ["HTDRDD_COMPONENT"]]
        lines = subprocess.run(command, capture_output=True, text=True, check=True).stdout.splitlines()
        self.assertEqual(sorted(line.split()[0] for line in lines), sorted(EXPORTED.split()))


if __name__ == "__main__":
    unittest.main()
