// Points and vectors.
#pragma once

struct ZnGePoint3d {
  double x = 0;
  double y = 0;
  double z = 0;
};

struct ZnGeVector3d {
  double x = 0;
  double y = 0;
  double z = 0;
};

struct ZnGeVector2d {
  double x = 0;
  double y = 0;
};
