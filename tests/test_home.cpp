#include "tests/test_home.h"

#include "platform/codepage.h"

#include <cstdint>
#include <fstream>
#include <sstream>
#include <stdlib.h>
#include <sys/wait.h>
#include <vector>

namespace tarvelin::test
{

namespace fs = std::filesystem;

namespace
{

std::string crlfText(const std::string& text)
{
  std::string result;
  for (const char c : text)
    result += c == '\n' ? std::string("\r\n") : std::string(1, c);
  return result;
}

void little(std::string& bytes, std::uint32_t number, int size)
{
  for (int i = 0; i < size; ++i)
    bytes += static_cast<char>(number >> 8 * i & 0xFF);
}

void shortString(std::string& bytes, const std::string& text)
{
  const std::string encoded = platform::encode(text, 1250);
  little(bytes, static_cast<std::uint32_t>(encoded.size()), 2);
  bytes += encoded;
}

std::string languagePack()
{
  std::string text;
  for (int i = 1; i <= 121; ++i)
    text += "T" + std::to_string(i) + "\n";
  for (int i = 1; i <= 23; ++i)
    text += "H" + std::to_string(i) + "\n";
  for (int i = 1; i <= 318; ++i)
    text += "C" + std::to_string(i) + "\n";
  return text;
}

std::string programForm(std::string path)
{
  for (char& c : path)
    if (c == '/')
      c = '\\';
  return path;
}

} // namespace

Scratch::Scratch()
{
  std::string name = (fs::temp_directory_path() / "tarvelin-XXXXXX").string();
  m_path = mkdtemp(name.data());
}

Scratch::~Scratch()
{
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
}

std::string settingsBytes(const std::string& pack)
{
  struct Group
  {
    std::uint32_t colour;
    int bold, italic;
  };
  std::string bytes;
  for (const Group& group : {Group{0xFF0000, -1, 0}, Group{0x00FF00, 0, -1}, Group{0x0040C0, -1, 0},
                             Group{0x404040, -1, 0}, Group{0x0000FF, 0, 0}, Group{0x0080FF, 0, 0}})
  {
    little(bytes, group.colour, 4);
    little(bytes, static_cast<std::uint32_t>(group.bold), 2);
    little(bytes, static_cast<std::uint32_t>(group.italic), 2);
  }
  shortString(bytes, pack);
  shortString(bytes, "\\tools\\tarvpbou.exe");
  shortString(bytes, "T92,T93,2");
  little(bytes, 0xFFFF, 2); // colours on
  little(bytes, 0, 2);      // tips off
  shortString(bytes, "Karel");
  shortString(bytes, "karel@example.org");
  for (int font = 0; font < 3; ++font)
    bytes += std::string(2 + 16, '\0');
  return bytes;
}

void makeHome(const fs::path& home, bool settings)
{
  const fs::path data = home / "Bfdata";
  for (const char* const folder : {"languages/Tv", "tips/Test", "dokumentace", "dtface", "pic", "oggwav"})
    fs::create_directories(data / folder);
  const auto text = [&](const char* name, const std::string& content)
  { writeBytes(data / name, platform::encode(crlfText(content), 1250)); };
  text("languages/Tv/Test.lng", languagePack());
  text("islands.dat", "Everon\nEden\nMalden\nAbel\nKolgujev\nCain\n");
  text("ofpsites.dat", "http://one.example/\nhttp://two.example/\n");
  text("commands.dat", "@Units\n#Orders\ndoMove\ndoStop\n#Groups\njoin\n@World\n#Time\nskipTime\n");
  text("edit.dat",
       "@ZBRANE\nM16\n@OPERATORY\nand\n@PRIKAZY\ndoMove\ngetPos\n@ACTIONKON\nEJECT\n@ANIMACE\nCombatToStand\n");
  text("Faces.dat", "Face1\nAdam\nFace2\nBruno\nFace3\nCyril\n");
  text("Speakers.dat", "v1\nAdam\nv2\nDan\nv3\nZed\n");
  text("fonts.dat", "TahomaB24\nCourierNewB64\nSteelfishB64\n");
  text("Rscdef.dat", "class RscText\n{\n  type=0;\n};\n");
  text("Readme.txt", "Mission: <MISSION>\nBy <NAME> (<MAIL>)\n<ADDONS>\nEnd\n");
  text("tips/Test/a.html", "<HTML><BODY>one</BODY></HTML>\n");
  text("tips/Test/b.html", "<HTML><BODY>two</BODY></HTML>\n");
  text("dokumentace/index.html", "<HTML><BODY>help</BODY></HTML>\n");
  if (settings)
    writeBytes(home / "Tarvinfo.cfg", settingsBytes(programForm((data / "languages/Tv/Test.lng").string())));
}

std::string readBytes(const fs::path& file)
{
  std::ifstream in(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

void writeBytes(const fs::path& file, const std::string& bytes)
{
  std::ofstream(file, std::ios::binary) << bytes;
}

std::string quoted(const std::string& word)
{
  std::string result = "'";
  for (const char c : word)
    result += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return result + "'";
}

Outcome runProgram(const std::string& command, const fs::path& folder, const fs::path& user)
{
  const Scratch outputs;
  fs::create_directories(user);
  const std::string line = "cd " + quoted(folder.string()) + " && HOME=" + quoted(user.string()) +
                           " XDG_DATA_HOME= XDG_CONFIG_HOME= LC_ALL=C.UTF-8 timeout 120 " + command + " >" +
                           quoted((outputs / "out").string()) + " 2>" + quoted((outputs / "err").string()) +
                           " </dev/null";
  const int status = std::system(line.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128, readBytes(outputs / "out"), readBytes(outputs / "err")};
}

} // namespace tarvelin::test
