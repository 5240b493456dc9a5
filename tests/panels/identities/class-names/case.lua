-- A class name holds Latin letters: the first other character cuts it off.
start()
for _, r in ipairs{
  {"Abc1", "Abc"}, {"abcXYZ", "abcXYZ"}, {"1abc", ""}, {"Jan Novak", "Jan"}, {"Jan_Novak", "Jan"}, {"Žofie", ""}, {"Jiří", "Ji"},
  {"a\"b", "a"}, {"a;b", "a"}, {"a\r\nb", "a"}, {"@", ""}, {"[", ""}, {"`z", ""}, {"z{", "z"}, {"", ""}, {"aſıb", "a"},
} do
  Form2.txtnazev.text = r[1]
  equal(Form2.txtnazev.text, r[2], "name " .. r[1])
end
Form2.txtnazev.text = ""
Form2.txtnazev:type("Mo je5P.ostava")
equal(Form2.txtnazev.text, "MojePostava", "rejected while typing, the rest goes on")
Form2.txtnazev.selstart = 4
Form2.txtnazev:type("1")
equal(Form2.txtnazev.text, "Moje", "in the middle it cuts what follows too")
