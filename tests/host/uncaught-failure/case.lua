-- exit: 70
-- stderr: run-time error 5: Invalid procedure call or argument
-- A failure of a procedure that the script does not catch ends the program.
start()
proc.HodnotaRadku("")
