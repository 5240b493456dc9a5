#pragma once

// Every kind of field, for the form records.
#include "core/forms/captioned.h"
#include "core/forms/disk_lists.h"
#include "core/forms/field_array.h"
#include "core/forms/form.h"
#include "core/forms/other_fields.h"
#include "core/forms/picture.h"
#include "core/forms/ranges.h"
#include "core/forms/rich_text.h"
#include "core/forms/rows.h"
#include "core/forms/text.h"
#include "core/forms/tree.h"
