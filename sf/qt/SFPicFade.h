#pragma once
// The short dip of a skinned control's picture on hover and press.

class QObject;
class QPropertyAnimation;

// A new, unstarted animation of target's "picTransparence" property,
// 1.0 -> 0.5 -> 1.0 over 300 ms, owned by target as its Qt parent.
QPropertyAnimation* SFCreatePicFade(QObject* target);
