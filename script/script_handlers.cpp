#include "script/script_handlers.h"

#include "script/catalogue.h"
#include "script/editor.h"
#include "script/editor_setup.h"
#include "script/find.h"
#include "script/index.h"

namespace tarvelin
{

void attachScript()
{
  attachCatalogue();
  attachEditor();
  attachFind();
  attachIndex();
  attachEditorSetup();
}

} // namespace tarvelin
