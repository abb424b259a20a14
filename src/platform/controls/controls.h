#pragma once

#include "platform/controls/file_controls.h"
#include "platform/controls/list_box.h"
#include "platform/controls/simple_controls.h"
#include "platform/controls/text_controls.h"
#include "platform/controls/tool_bar.h"
#include "platform/controls/unseen_controls.h"
