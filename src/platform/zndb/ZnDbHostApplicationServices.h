// The object that the library asks about its host, and the library's setup.
#pragma once

#include "platform/zndb/Status.h"
#include "platform/zndb/ZnRx.h"

class ZnDbDatabase;

// A locale by its Windows identifier.
class ZnLocale {
 public:
  explicit ZnLocale(int id) : id_(id) {}
  int id() const { return id_; }

 private:
  int id_;
};

// Which font the library looks for, and where the answer goes.  The engine passes it on unread.
struct ZnFontRequest;

// The base of every host services object.  The operations that a host doesn't override are the
// library's own.
class ZnDbHostApplicationServices : public ZnRxObject {
 public:
  explicit ZnDbHostApplicationServices(int loadTranslations);
  ~ZnDbHostApplicationServices() override;
  ZnDbHostApplicationServices(const ZnDbHostApplicationServices&) = delete;
  ZnDbHostApplicationServices& operator=(const ZnDbHostApplicationServices&) = delete;

  ZnRxClass* isA() const override;

  // Looks for the file `fileName`, which the drawing `database`, null for none, asks for; `hint`
  // tells its kind, and with it the extension of a name without one.  Writes its full path into
  // `fileOut`, of `bufferLength` characters and 260 at least.  0, or 76 if it isn't found.
  virtual Zent::ErrorStatus findFile(wchar_t* fileOut, int bufferLength, const wchar_t* fileName,
                                     ZnDbDatabase* database, int hint) = 0;
  // The folder for what the user keeps from one computer to the next; valid until the process ends.
  // Always 0.
  virtual Zent::ErrorStatus getRoamingRootFolder(const wchar_t*& folder) = 0;
  // An object of the library's that the base class keeps; the engine neither sets nor reads it.
  virtual void* workingServiceObject() const = 0;
  // The product code: 4 where the library runs inside a host of this engine's kind.
  virtual int prodcode() const;
  // Who the host says it is.  Valid until the host's parameters change; never null.
  virtual const wchar_t* getHostIdentityPrimary() const = 0;
  virtual const wchar_t* getHostIdentitySecondary() const = 0;
  // Asked when a font is missing.
  virtual bool substituteFontRequest(ZnFontRequest* request) = 0;
  // The library's own answer to the same question: true if it found a substitute.
  virtual bool getSubstituteFont(ZnFontRequest* request);
  // Whether the host answers a question of the library's.
  virtual bool acceptHostQuery(void* query) = 0;

  // The working database of the process; null if there is none.
  ZnDbDatabase* workingDatabase() const;
  // Makes `database`, which may be null, the working one.
  void setWorkingDatabase(ZnDbDatabase* database);

 protected:
  // What the base class keeps for workingServiceObject.
  void* storedServiceObject_ = nullptr;
};

// The installed services object; null before any was installed.
ZnDbHostApplicationServices* zndbHostApplicationServices();
// Installs `services`, which the caller keeps.
Zent::ErrorStatus zndbSetHostApplicationServices(ZnDbHostApplicationServices* services);
// The library's own check of its setup.
Zent::ErrorStatus zndbValidateSetup(const ZnLocale& locale);
// Gives back what the library holds for the process.
void zndbCleanUp();
