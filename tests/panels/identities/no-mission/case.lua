-- Without an open mission the menu tells so.
local boxes = {}
on.box = function(text, buttons, icon) boxes[#boxes + 1] = text .. "/" .. buttons .. "/" .. icon return "ok" end
start()
frmmain.mnuksicht:click()
equal(table.concat(boxes, "|"), "H14/ok/information", "one box")
equal(Form2.visible, false, "and no form")
