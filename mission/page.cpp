#include "mission/page.h"

namespace tarvelin
{

std::string pageHead(std::string_view title, std::string_view generator)
{
  std::string head;
  addLine(head, "<HTML>");
  addLine(head, "<HEAD>");
  addLine(head, R"(<META http-equiv="Content-Type" content="Text/html Charset=windows-1250">)");
  addLine(head, R"(<META name="GENERATOR" content=")" + std::string(generator) + "\">");
  addLine(head, "<TITLE>" + std::string(title) + "</TITLE>");
  addLine(head, "</HEAD>");
  addLine(head, R"(<BODY bgcolor="#FFFFFF">)");
  addLine(head, "<BR><BR>");
  return head;
}

} // namespace tarvelin
