# End-to-end tests: each file holds its RUN: lines and the CHECK: lines that FileCheck reads.
import os
import lit.formats

config.name = "qvt"
config.test_format = lit.formats.ShTest(execute_external=False)
config.suffixes = [".c", ".test", ".ir"]
config.excludes = ["Inputs", "CMakeLists.txt", "lit.cfg.py", "lit.site.cfg.py.in"]
config.test_source_root = os.path.dirname(__file__)
config.test_exec_root = os.path.join(config.qvt_binary_root, "tests")

# Our commands come first on PATH, so RUN lines name them plainly: qvt-cfront, qvt-stubber, qvt-irdump.
config.environment["PATH"] = os.pathsep.join([config.qvt_bin_dir, config.environment.get("PATH", os.environ["PATH"])])
for var in ["ASAN_OPTIONS", "UBSAN_OPTIONS", "HOME", "TMPDIR"]:
    if var in os.environ:
        config.environment[var] = os.environ[var]
# Leaks are not errors of the stubber: text made for generated files lives to the end of the process.
config.environment["ASAN_OPTIONS"] = "detect_leaks=0:" + config.environment.get("ASAN_OPTIONS", "")

target_dir = os.path.join(config.qvt_source_root, "target")
filecheck = config.qvt_filecheck + " --match-full-lines --strict-whitespace"

config.substitutions.append(("%FileCheck-exact", filecheck))
config.substitutions.append(("%FileCheck", config.qvt_filecheck))
config.substitutions.append(("%src_root", config.qvt_source_root))
config.substitutions.append(("%target_dir", target_dir))
config.substitutions.append(("%gcc", config.qvt_gcc))
config.substitutions.append(("%clang", config.qvt_clang))
# %cc-check FILES...: the generated C must compile with gcc and with clang, the support header forced in.
# Freestanding, as generated files are compiled for analysis: the entry point may then call a
# `main(int, signed char **)` and the generated `void main(void)` is legal.
cc_flags = "-fsyntax-only -std=gnu11 -ffreestanding -I %s -include %s/qvt_target.h" % (target_dir, target_dir)
config.substitutions.append(("%cc-check",
    "%s/tests/cc_check.sh '%s' '%s' '%s'" % (config.qvt_source_root, config.qvt_gcc, config.qvt_clang, cc_flags)))

# An embedded C library's headers (Debian: libnewlib-arm-none-eabi) for the tests of an ARM target.
newlib_arm = "/usr/lib/arm-none-eabi/include"
if os.path.exists(os.path.join(newlib_arm, "stdio.h")):
    config.available_features.add("newlib-arm")
    config.substitutions.append(("%newlib_arm", newlib_arm))
if config.qvt_framac:
    config.available_features.add("framac")
    config.substitutions.append(("%frama-c", config.qvt_framac))
if config.qvt_sanitize in ("ON", "1", "TRUE"):
    config.available_features.add("asan")
