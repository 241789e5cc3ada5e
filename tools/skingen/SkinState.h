#pragma once

// The four faces of an image button, in the order of ImageButtonStyle.
enum class SkinState { Normal, Hover, Pressed, Disabled };
