# Runs the kilnutil tool once and checks its exit code and output.
# -DTOOL=path -DARGC=n -DARG0=... -DARG<n-1>=... -DRC=code -DSTDOUT_REGEX=re
# -DSTDERR_REGEX=re -DSTDIN=file [-DEMULATOR=program that runs a cross-built tool]
set(args "")
if(ARGC GREATER 0)
  math(EXPR last "${ARGC} - 1")
  foreach(index RANGE ${last})
    list(APPEND args "${ARG${index}}")
  endforeach()
endif()
set(input_args "")
if(STDIN)
  set(input_args INPUT_FILE "${STDIN}")
endif()
execute_process(COMMAND ${EMULATOR} "${TOOL}" ${args} ${input_args}
  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
# On Windows the tool's standard output is binary, as on POSIX, but its
# standard error is in text mode: each line end there is CR LF.
if(EMULATOR)
  string(REPLACE "\r\n" "\n" err "${err}")
endif()
message("exit code: ${rc}\n--- stdout\n${out}--- stderr\n${err}---")
if(NOT rc STREQUAL RC)
  message(FATAL_ERROR "expected exit code ${RC}, got ${rc}")
endif()
if(STDOUT_REGEX AND NOT out MATCHES "${STDOUT_REGEX}")
  message(FATAL_ERROR "stdout does not match: ${STDOUT_REGEX}")
endif()
if(STDERR_REGEX AND NOT err MATCHES "${STDERR_REGEX}")
  message(FATAL_ERROR "stderr does not match: ${STDERR_REGEX}")
endif()
