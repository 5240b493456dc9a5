#include "tools/links.h"

#include "core/attempt.h"
#include "core/desk.h"
#include "core/forms/form4.h"
#include "core/forms/frmmain.h"
#include "core/program.h"
#include "core/run_log.h"
#include "core/strings.h"
#include "core/text_file.h"

namespace tarvelin
{

namespace
{

void Form4_Load()
{
  Form4.List1.clear();
  attempt(
      []
      {
        LineReader sites(programFile("\\Bfdata\\ofpsites.dat"));
        while (!sites.atEnd())
          Form4.List1.add(sites.next());
      });
}

void Command1_Click()
{
  std::string address;
  attempt(
      [&]
      {
        address = trim(Form4.List1.text(Form4.List1.index()));
        if (!desk().browse(address))
          throw Failure(Fault::fileNotFound);
      },
      [&](const Failure& failure)
      {
        ZapisLog("Chyba při pokusu o otevření HTML stránky: " + address + ", " + failureText(failure) +
                 std::string(crlf));
      });
}

} // namespace

void attachLinks()
{
  Form4.onLoad = Form4_Load;
  Form4.Command1.onClick = Command1_Click;
  Form4.Command2.onClick = [] { Form4.hide(); };
  frmmain.mnunet.onClick = [] { Form4.show(); };
}

} // namespace tarvelin
