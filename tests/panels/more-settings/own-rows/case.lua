-- The author's own rows of the string table: eight prompts, empty columns, the caret.
start()
local f = frmdalsinast
local function add(answers)
  local asked = {}
  on.prompt = function(text)
    asked[#asked + 1] = text
    return answers[text]
  end
  f.Command6:click()
  return table.concat(asked, " ")
end
equal(add {}, "T113", "a cancel of the key ends it")
equal(add {T113 = ""}, "T113", "an empty key as well")
equal(f.txtstringtable.text, "", "nothing was added")
equal(add {T113 = "Kl", T114 = "česky", T115 = "english", T116 = "deutsch", T117 = "français", T118 = "italiano",
  T119 = "español", T120 = "comment"}, "T113 T114 T115 T116 T117 T118 T119 T120", "the prompts in the order of the columns")
equal(f.txtstringtable.text, "$STRM_Kl,česky,english,deutsch,français,italiano,español,comment\r\n", "the row")
f.txtstringtable.selstart = 3
add {T113 = "Kl", T115 = "a \"b\", c"}
equal(f.txtstringtable.text, "$STRM_Kl,česky,english,deutsch,français,italiano,español,comment\r\n" ..
  "$STRM_Kl,,a \"b\", c,,,,,\r\n", "a cancelled column stays empty; no key is checked; the row goes to the end")
f.txtstringtable.text = "no line end"
add {T113 = " "}
equal(f.txtstringtable.text, "no line end$STRM_ ,,,,,,,\r\n", "behind what stands there")
