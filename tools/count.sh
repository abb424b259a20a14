# How many tests passed and failed, told from what the test programs printed. To be sourced.

# lastCounts FILE: gives "PASSED FAILED" when the last line of the file is "N passed, N failed", else fails.
lastCounts() {
  tail -n 1 "$1" | sed -nE 's/^([0-9]+) passed, ([0-9]+) failed$/\1 \2/p' | grep .
}

# sumCounts FILE...: sums the last lines.
sumCounts() {
  local file
  for file in "$@"; do
    lastCounts "$file"
  done | awk '{ passed += $1; failed += $2 } END { printf "%d passed, %d failed\n", passed, failed }'
}

# countPrograms LOG: counts each test of each program in a log of CTest: GoogleTest's cases, Qt Test's totals, or the program as one test
# when it prints neither. A program that fails without a failed test, by a crash for example, counts as one failed test more, and so does
# a GoogleTest program without tests.
countPrograms() {
  awk '
    function finish() {
      if (name == "") return
      if (cases) { good = ok; bad = started - ok - skipped; if (started == 0) bad = 1 }
      else if (good + bad == 0 && result == "Passed") good = 1
      if (bad == 0 && result != "Passed") bad = 1
      passed += good
      failed += bad
      name = ""
    }
    /^[0-9]+\/[0-9]+ Testing: / {
      finish()
      name = $3; result = "Broken"; cases = started = ok = skipped = good = bad = 0
    }
    # CTest tells of a program that does not exist as of one that passed.
    /^Command: ""$/ { missing = name }
    /^\[==========\] Running / { cases = 1 }
    /^\[ RUN      \] / { ++started }
    /\[       OK \] .* \([0-9]+ ms\)$/ { ++ok }
    /\[  SKIPPED \] .* \([0-9]+ ms\)$/ { ++skipped }
    /^Totals: [0-9]+ passed, [0-9]+ failed/ { good += $2; bad += $4 }
    /^Test (Passed|Failed)\.$/ { result = missing == name ? "Missing" : substr($2, 1, 6) }
    END {
      finish()
      printf "%d passed, %d failed\n", passed, failed
    }' "$1"
}
