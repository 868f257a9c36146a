#pragma once

// Numbers of resources and controls, shared by the resource script and the code.
