-- Members of text and rich text fields.
start()
local text = frmmain.txtOverview
equal(text.kind, "text", "kind")
equal(frmmain.skript.kind, "richtext", "kind of a rich text")
text.text = "Žluťoučký"
equal(text.text, "Žluťoučký", "writing replaces the whole text")
equal(text.selstart, 9, "the caret stands at its end, in characters")
equal(text.sellength, 0, "with nothing selected")
fails(function() return text.caption end, "no member frmmain.txtOverview.caption", "a text has no caption")

text:type("ab")
equal(text.text, "Žluťoučkýab", "typing goes to the caret")
text.selstart = 1
text.sellength = 3
equal(text.sellength, 3, "the selection")
text:type("x")
equal(text.text, "Žxoučkýab", "typing replaces the selection")
equal(text.selstart, 2, "the caret stands behind it")
text.selstart = 99
equal(text.selstart, 9, "a caret behind the end is at the end")
text.selstart = -3
equal(text.selstart, 0, "and never before the start")

-- the change handler: once for a write, once for each character
frmcamp1.txtkampJmeno.text = "Jedna"
equal(shared.JmenoKampane, "Jedna", "a write runs the change handler")
frmcamp1.txtkampJmeno:type("23")
equal(shared.JmenoKampane, "Jedna23", "so does each character")

local font = text.font
for _, key in ipairs{"name", "size", "bold", "italic", "strikethrough", "underline", "color"} do
  check(font[key] ~= nil, "the font has " .. key)
end
fails(function() text.font = font end, "cannot be written", "the font is changed by the font chooser alone")
fails(function() text.text = {} end, "string expected", "a text is a string")
fails(function() text:key("hyper+b") end, "no key hyper+b", "an unknown key")

local script = frmmain.skript
script.text = "abc"
local style = script:style(1)
equal(math.type(style.color), "integer", "a style has a colour")
equal(style.bold, false, "bold as a boolean")
equal(style.italic, false, "italic as a boolean")
fails(function() return text:style(0) end, "no member frmmain.txtOverview.style", "only rich text has styles")
