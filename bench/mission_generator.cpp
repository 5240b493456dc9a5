#include "bench/mission_generator.h"

#include <array>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvelin::bench
{

namespace
{

constexpr std::array<std::string_view, 4> sections = {"Mission", "Intro", "OutroWin", "OutroLoose"};
constexpr std::array<std::string_view, 8> soldiers = {"SoldierWB", "SoldierWG", "SoldierWMG", "SoldierWLAW",
                                                      "OfficerW",  "SoldierEB", "Ural",       "SoldierEMG"};
constexpr std::array<std::string_view, 8> orders = {
    "this setFace \"\"Face21\"\"; ",
    "this addWeapon \"\"Binocular\"\"; ",
    "{this addMagazine \"\"HandGrenade\"\"} forEach [1,2,3,4]; ",
    "[this, 25, random 360] exec \"\"skripty\\hlidka.sqs\"\"; ",
    "this setUnitPos \"\"DOWN\"\"; ",
    "if (local this) then {this allowDammage false; this setDammage 0.1}; ",
    "this setPos [getPos this select 0, (getPos this select 1) + 12.5, 0]; ",
    "group this setCombatMode \"\"YELLOW\"\"; ",
};

/// Writes lines with the editor's indentation.
class Writer
{
public:
  explicit Writer(const std::filesystem::path& path) : m_file(path, std::ios::binary) {}

  void line(std::string_view text)
  {
    m_line.assign(m_depth, '\t');
    m_line.append(text).append("\r\n");
    m_file << m_line;
    m_size += m_line.size();
  }

  void open(std::string_view name)
  {
    line("class " + std::string(name));
    line("{");
    ++m_depth;
  }

  void close()
  {
    --m_depth;
    line("};");
  }

  void count(std::size_t items) { line("items=" + std::to_string(items) + ";"); }

  void position()
  {
    line("position[]={" + std::to_string(m_place(m_chance)) + "," + std::to_string(m_place(m_chance) / 100) + "," +
         std::to_string(m_place(m_chance)) + "};");
  }

  std::size_t oneOf(std::size_t choices) { return m_chance() % choices; }

  std::uint64_t size() const { return m_size; }

  void finish()
  {
    m_file.flush();
    if (!m_file)
      throw std::runtime_error("the mission could not be written");
  }

private:
  std::ofstream m_file;
  std::string m_line;
  std::size_t m_depth = 0;
  std::uint64_t m_size = 0;
  std::mt19937 m_chance{11}; // the same mission every time
  std::uniform_real_distribution<double> m_place{0, 12'800};
};

void writeUnit(Writer& out, std::size_t number, std::size_t item)
{
  out.open("Item" + std::to_string(item));
  out.position();
  out.line("azimut=" + std::to_string(out.oneOf(360)) + ".000000;");
  out.line("id=" + std::to_string(number) + ";");
  out.line("side=\"WEST\";");
  out.line("vehicle=\"" + std::string(soldiers[out.oneOf(soldiers.size())]) + "\";");
  if (item == 0)
    out.line("leader=1;");
  out.line("skill=0.600000;");
  out.line("text=\"jednotka" + std::to_string(number) + "\";");
  std::string init = "init=\"";
  for (std::size_t i = 6 + out.oneOf(16); i > 0; --i)
    init += orders[out.oneOf(orders.size())];
  out.line(init + "\";");
  out.close();
}

/// One group after another until the file has `end` bytes. The editor knows the counts beforehand; here they are large
/// enough, and nobody asks.
void writeGroups(Writer& out, std::uint64_t end)
{
  constexpr std::size_t unitsOfGroup = 12;
  out.open("Groups");
  out.count(30'000);
  std::size_t unit = 0;
  for (std::size_t group = 0; out.size() < end; ++group)
  {
    out.open("Item" + std::to_string(group));
    out.line("side=\"WEST\";");
    out.open("Vehicles");
    out.count(unitsOfGroup);
    for (std::size_t item = 0; item < unitsOfGroup; ++item)
      writeUnit(out, unit++, item);
    out.close();
    out.close();
  }
  out.close();
}

void writeMarkers(Writer& out)
{
  out.open("Markers");
  out.count(generatedMarkers);
  for (int i = 0; i < generatedMarkers; ++i)
  {
    const std::string number = std::to_string(i);
    out.open("Item" + number);
    out.position();
    out.line("name=\"znacka" + number + "\";");
    out.line("text=\"Hlidka " + number + "\";");
    out.line("type=\"Flag\";");
    out.line("colorName=\"ColorRed\";");
    out.close();
  }
  out.close();
}

void writeSensors(Writer& out)
{
  out.open("Sensors");
  out.count(generatedSensors);
  for (int i = 0; i < generatedSensors; ++i)
  {
    const std::string number = std::to_string(i);
    out.open("Item" + number);
    out.position();
    out.line("a=50.000000;");
    out.line("b=50.000000;");
    out.line("activationBy=\"WEST\";");
    out.line("type=\"SWITCH\";");
    out.line("age=\"UNKNOWN\";");
    out.line("text=\"Spinac " + number + "\";");
    out.line("expCond=\"this and not hotovo" + number + "\";");
    out.open("Effects");
    out.close();
    out.line("synchronizations[]={};");
    out.close();
  }
  out.close();
}

} // namespace

void generateMission(const std::filesystem::path& path, std::uint64_t bytes)
{
  Writer out(path);
  out.line("version=11;");
  for (std::size_t i = 0; i < sections.size(); ++i)
  {
    out.open(sections[i]);
    out.line("addOns[]=");
    out.line("{");
    out.line("\t\"kolo\",");
    out.line("\t\"vulcan\"");
    out.line("};");
    out.line("randomSeed=8146947;");
    out.open("Intel");
    if (i == 0)
    {
      out.line("briefingName=\"Velka mise\";");
      out.line("startWeather=0.300000;");
      out.line("month=9;");
      out.line("hour=5;");
    }
    out.close();
    writeGroups(out, bytes * (i + 1) / sections.size());
    if (i == 0)
    {
      writeMarkers(out);
      writeSensors(out);
    }
    out.close();
  }
  out.finish();
}

} // namespace tarvelin::bench
