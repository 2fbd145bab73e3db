// The rectangles in which the television shows a call's pictures.
#pragma once

// A place on the television's screen of 1920 by 1080 points.
struct VideoRect {
  int x;
  int y;
  int width;
  int height;
};

inline constexpr VideoRect kWholeScreen = {0, 0, 1920, 1080};

// What the widget has set, with the places that apply until it does.
struct VideoLayout {
  VideoRect tvPreview = kWholeScreen;
  VideoRect tvReceive = kWholeScreen;
  VideoRect tvView = kWholeScreen;
  VideoRect normalPreview = {1438, 634, 320, 240};
  VideoRect normalReceive = {124, 34, 1144, 858};
  VideoRect callingPreview = kWholeScreen;
};
