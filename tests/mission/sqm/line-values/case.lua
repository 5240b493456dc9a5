-- HodnotaRadku and BezUvozovek.
for _, row in ipairs{
  {'briefingName="x";', '"x"'}, {"a=1;", "1"}, {"a=1", ""}, {"a = b = c ;", " b = c "}, {"a==;", "="}, {"=x;", "x"},
  {"no equals sign;", "no equals sign"}, {"x", ""}, {'text="Žluť";', '"Žluť"'}, {"žluť=ž;", "ž"}, {"a=1;\t", "1;"},
} do equal(proc.HodnotaRadku(row[1]), row[2], "value of " .. row[1]) end
for _, line in ipairs{"", "a=", "žluť="} do
  fails(function() proc.HodnotaRadku(line) end, "run-time error 5", "nothing to take from '" .. line .. "'")
end
equal(proc.BezUvozovek('"a"b""c'), "abc", "every double quote goes")
equal(proc.BezUvozovek("'a'"), "'a'", "single ones stay")
