// The bytes of the API structures, built from plain field values (in each layout; lengths stand for 32 bits).
#pragma once

#include "structure_composer_attributes.h"
#include "structure_composer_channel.h"
#include "structure_composer_connection.h"
#include "structure_composer_message.h"
#include "structure_composer_object.h"
#include "structure_composer_subscription.h"
