# Runs the kilnutil tool once and checks its exit code and output.
# -DTOOL=path -DARGS=args separated by \x1f -DRC=code -DSTDOUT_REGEX=re
# -DSTDERR_REGEX=re -DSTDIN=file
string(REPLACE "\x1f" ";" args "${ARGS}")
set(input_args "")
if(STDIN)
  set(input_args INPUT_FILE "${STDIN}")
endif()
execute_process(COMMAND "${TOOL}" ${args} ${input_args}
  RESULT_VARIABLE rc OUTPUT_VARIABLE out ERROR_VARIABLE err)
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
