-- Pictures and games for cases that need some: dofile(arg[1] .. "/pictures.lua").

-- the head of a JPEG of that size, which is all that the program itself looks at
function jpeg(width, height)
  return "\xFF\xD8\xFF\xE0\0\x10JFIF\0\1\1\0\0\1\0\1\0\0\xFF\xC0\0\x0B\8" .. string.pack(">I2I2", height, width) .. "\1\1\x11\0\xFF\xD9"
end

-- registers a game in the native folder with the user's Wine prefix, before the start
function install_game(folder)
  local main = folder:gsub("/", "\\\\")
  make_folder(os.getenv("HOME") .. "/.wine")
  write_file(os.getenv("HOME") .. "/.wine/system.reg", "WINE REGISTRY Version 2\n\n[Software\\\\Codemasters\\\\Operation Flashpoint] 1700000000\n"
    .. '"CDDRIVE"="D:"\n"MAIN"="' .. main .. '"\n')
end

-- the picture picker: what the user does on it, highlighting a file of a native folder and pressing a command
function pick_picture(folder, name, command)
  on.modal.Frmopen = function(form)
    form.Dir1.path = path(folder)
    if name then form.File1:select(name) end
    form[command or "cmdOk"]:click()
  end
end
