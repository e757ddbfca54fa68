// The model-documentation library.
#pragma once

#include "platform/zndb/Status.h"
#include "platform/zndb/ZnString.h"

class ZnDbDatabase;

class ZnModelDocObjUtil {
 public:
  // Whether the drawing holds views of an embedded model drawing.
  static bool hasPartonicModelDocViews(ZnDbDatabase* database);
  // Takes the embedded drawing out of `database`: `unpacked` is the full path of the file that was
  // made for it, which the caller deletes.  A status other than 0 if the drawing holds none or the
  // file can't be made; `unpacked` is left as it is then.
  static Zent::ErrorStatus unpackPartonicDrawingFile(ZnDbDatabase* database, ZnString& unpacked);
  // Stores `redirections`, which nobody here looks into, in `database`, where a save finds it.  A
  // status other than 0 if the drawing can't hold it.
  static Zent::ErrorStatus setRedirectionsInfo(ZnDbDatabase* database,
                                               const ZnString& redirections);
};

namespace modeldoc {

// What stands behind the operations above; each virtual operation is the one of the same name.
class Provider {
 public:
  virtual ~Provider() = default;
  virtual bool hasPartonicModelDocViews(ZnDbDatabase* database) = 0;
  virtual Zent::ErrorStatus unpackPartonicDrawingFile(ZnDbDatabase* database,
                                                      ZnString& unpacked) = 0;
  virtual Zent::ErrorStatus setRedirectionsInfo(ZnDbDatabase* database,
                                                const ZnString& redirections) = 0;
};

// As os::InstallProvider.
Provider* InstallProvider(Provider* provider);

}  // namespace modeldoc
