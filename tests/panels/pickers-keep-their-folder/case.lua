-- Each picker opens again at the folder in which it was left, as long as the program runs, cancelled or not.
local folder, other = make_folder(work .. "/Mé mise"), make_folder(work .. "/jinde")
start()

local function kept(form, cancel, open)
  for _, place in ipairs{folder, other} do
    on.modal[form] = function(picker)
      picker.Dir1.path = path(place)
      picker[cancel]:click()
    end
    open()
    on.modal[form] = function(picker)
      equal(picker.Dir1.path, path(place), form .. ": the folder")
      equal(picker.File1.path, path(place), form .. ": the files' folder")
    end
    open()
  end
  on.modal[form] = nil
end

kept("frmopenmission", "Command2", function() frmmain.mnufileopen:click() end)
kept("Frmopen", "cmdstorno", function() frmmain.cmdopen:click() end)
kept("frmopen2", "Command1", function() frmmain.mnuwavogg:click() end)
kept("frmnactizvuky", "cmdstorno", function() frmmain.cmdnacistradio:click() end)
quit()
