#pragma once

class QAbstractScrollArea;

/// Lets a finger scroll \a area, and makes its scroll bar a narrow one that only shows the place.
void scrollByFinger(QAbstractScrollArea *area);

/// The same for an area of rows, which a mouse can swipe like a finger. A press reaches a row only
/// after 0.15 s, or at the release, so a swipe presses none. Not inside an area that scrolls by
/// finger: the toolkit would move both.
void scrollRowsByFinger(QAbstractScrollArea *area);

/// Lets a finger or the mouse move what \a area shows in both directions. A press reaches the area
/// at once. The same holds for it inside another area.
void panByFinger(QAbstractScrollArea *area);
