// A federate's own ambassador, time, interval, time factory and data element. Up to C++14 they
// repeat the exception lists of what they override. They are declared only: nothing is linked.
// compile: 98 11 14 -Wno-deprecated -Wno-deprecated-declarations
// compile: 98 11 14 17 20 2b -DRTI_THROW(list)= -Wno-deprecated -Wno-deprecated-declarations
// compile: 17 20 2b -Wno-deprecated-declarations
#include <RTI/encoding/DataElement.h>
#include <RTI/LogicalTimeFactory.h>
#include <RTI/RTI1516.h>

#if __cplusplus >= 201103L
#include <type_traits>
#endif

#if __cplusplus >= 201703L
#define LIST(list)
#else
#define LIST(list) throw list
#endif

using namespace rti1516e;

// Stands between a federate and the RTI in a few services, and so remains abstract.
class PartialAmbassador : public RTIambassador {
public:
   PartialAmbassador();
   virtual ~PartialAmbassador();

   virtual void connect(FederateAmbassador& theFederateAmbassador, CallbackModel theCallbackModel,
         std::wstring const& localSettingsDesignator)
         LIST((ConnectionFailed, InvalidLocalSettingsDesignator, UnsupportedCallbackModel,
               AlreadyConnected, CallNotAllowedFromWithinCallback, RTIinternalError));
   virtual bool queryGALT(LogicalTime& theTime) LIST((SaveInProgress, RestoreInProgress,
         FederateNotExecutionMember, NotConnected, RTIinternalError));
   virtual std::auto_ptr<LogicalTimeFactory> getTimeFactory() const
         LIST((FederateNotExecutionMember, NotConnected, RTIinternalError));
   virtual RegionHandle decodeRegionHandle(VariableLengthData const& encodedValue) const
         LIST((CouldNotDecode, FederateNotExecutionMember, NotConnected, RTIinternalError));
};

#if __cplusplus >= 201103L
static_assert(std::is_abstract<PartialAmbassador>::value, "services must be pure virtual");
static_assert(!std::is_abstract<NullFederateAmbassador>::value, "callbacks must have a body");
#endif

class TickInterval : public LogicalTimeInterval {
public:
   TickInterval();
   virtual ~TickInterval();

   virtual void setZero();
   virtual bool isZero() const;
   virtual void setEpsilon();
   virtual bool isEpsilon() const;
   virtual LogicalTimeInterval& operator=(LogicalTimeInterval const& value)
         LIST((InvalidLogicalTimeInterval));
   virtual LogicalTimeInterval& operator+=(LogicalTimeInterval const& addend)
         LIST((IllegalTimeArithmetic, InvalidLogicalTimeInterval));
   virtual LogicalTimeInterval& operator-=(LogicalTimeInterval const& subtrahend)
         LIST((IllegalTimeArithmetic, InvalidLogicalTimeInterval));
   virtual bool operator>(LogicalTimeInterval const& value) const
         LIST((InvalidLogicalTimeInterval));
   virtual bool operator<(LogicalTimeInterval const& value) const
         LIST((InvalidLogicalTimeInterval));
   virtual bool operator==(LogicalTimeInterval const& value) const
         LIST((InvalidLogicalTimeInterval));
   virtual bool operator>=(LogicalTimeInterval const& value) const
         LIST((InvalidLogicalTimeInterval));
   virtual bool operator<=(LogicalTimeInterval const& value) const
         LIST((InvalidLogicalTimeInterval));
   virtual void setToDifference(LogicalTime const& minuend, LogicalTime const& subtrahend)
         LIST((IllegalTimeArithmetic, InvalidLogicalTime));
   virtual VariableLengthData encode() const;
   virtual size_t encode(void* buffer, size_t bufferSize) const LIST((CouldNotEncode));
   virtual size_t encodedLength() const;
   virtual void decode(VariableLengthData const& data) LIST((InternalError, CouldNotDecode));
   virtual void decode(void* buffer, size_t bufferSize) LIST((InternalError, CouldNotDecode));
   virtual std::wstring toString() const;
   virtual std::wstring implementationName() const;
};

class TickTime : public LogicalTime {
public:
   TickTime();
   virtual ~TickTime();

   virtual void setInitial();
   virtual bool isInitial() const;
   virtual void setFinal();
   virtual bool isFinal() const;
   virtual LogicalTime& operator=(LogicalTime const& value) LIST((InvalidLogicalTime));
   virtual LogicalTime& operator+=(LogicalTimeInterval const& addend)
         LIST((IllegalTimeArithmetic, InvalidLogicalTimeInterval));
   virtual LogicalTime& operator-=(LogicalTimeInterval const& subtrahend)
         LIST((IllegalTimeArithmetic, InvalidLogicalTimeInterval));
   virtual bool operator>(LogicalTime const& value) const LIST((InvalidLogicalTime));
   virtual bool operator<(LogicalTime const& value) const LIST((InvalidLogicalTime));
   virtual bool operator==(LogicalTime const& value) const LIST((InvalidLogicalTime));
   virtual bool operator>=(LogicalTime const& value) const LIST((InvalidLogicalTime));
   virtual bool operator<=(LogicalTime const& value) const LIST((InvalidLogicalTime));
   virtual VariableLengthData encode() const;
   virtual size_t encode(void* buffer, size_t bufferSize) const LIST((CouldNotEncode));
   virtual size_t encodedLength() const;
   virtual void decode(VariableLengthData const& data) LIST((InternalError, CouldNotDecode));
   virtual void decode(void* buffer, size_t bufferSize) LIST((InternalError, CouldNotDecode));
   virtual std::wstring toString() const;
   virtual std::wstring implementationName() const;
};

class TickFactory : public LogicalTimeFactory {
public:
   virtual ~TickFactory();

   virtual std::auto_ptr<LogicalTime> makeInitial() LIST((InternalError));
   virtual std::auto_ptr<LogicalTime> makeFinal() LIST((InternalError));
   virtual std::auto_ptr<LogicalTimeInterval> makeZero() LIST((InternalError));
   virtual std::auto_ptr<LogicalTimeInterval> makeEpsilon() LIST((InternalError));
   virtual std::auto_ptr<LogicalTime> decodeLogicalTime(VariableLengthData const& data)
         LIST((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTime> decodeLogicalTime(void* buffer, size_t bufferSize)
         LIST((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(
         VariableLengthData const& data) LIST((InternalError, CouldNotDecode));
   virtual std::auto_ptr<LogicalTimeInterval> decodeLogicalTimeInterval(
         void* buffer, size_t bufferSize) LIST((InternalError, CouldNotDecode));
   virtual std::wstring getName() const;
};

class Flag : public DataElement {
public:
   virtual ~Flag();

   virtual std::auto_ptr<DataElement> clone() const;
   virtual VariableLengthData encode() const LIST((EncoderException));
   virtual void encode(VariableLengthData& inData) const LIST((EncoderException));
   virtual void encodeInto(std::vector<Octet>& buffer) const LIST((EncoderException));
   virtual void decode(VariableLengthData const& inData) LIST((EncoderException));
   virtual size_t decodeFrom(std::vector<Octet> const& buffer, size_t index)
         LIST((EncoderException));
   virtual size_t getEncodedLength() const LIST((EncoderException));
   virtual unsigned int getOctetBoundary() const;
};

// None of them is abstract.
void use(LogicalTimeFactory const&, LogicalTime const&, LogicalTimeInterval const&,
      DataElement const&);

void useOwn()
{
   use(TickFactory(), TickTime(), TickInterval(), Flag());
}
