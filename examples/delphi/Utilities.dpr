{ The utilities from Delphi: late-bound, with a listener to their event. Tavrin.dll must be registered, with the bitness
  of the program.

    Utilities.exe "Provider=...;Data Source=...;Initial Catalog=..."

  Nobody has run this yet: there is no Delphi where the component is made. }
program Utilities;

{$APPTYPE CONSOLE}

uses
  Windows, SysUtils, ActiveX, ComObj, Variants;

const
  // The event interface, as the type library gives it; its one event has the number 1.
  EventInterface: TGUID = '{51f3b231-8d50-4570-9a1f-3bba5b5f9b33}';
  Iesire = 1;

type
  { Hears that the user has left. }
  TLeavingListener = class(TInterfacedObject, IDispatch)
    function GetTypeInfoCount(out Count: Integer): HResult; stdcall;
    function GetTypeInfo(Index, LocaleID: Integer; out TypeInfo): HResult; stdcall;
    function GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer;
      DispIDs: Pointer): HResult; stdcall;
    function Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params;
      VarResult, ExcepInfo, ArgErr: Pointer): HResult; stdcall;
  end;

function TLeavingListener.GetTypeInfoCount(out Count: Integer): HResult;
begin
  Count := 0;
  Result := S_OK;
end;

function TLeavingListener.GetTypeInfo(Index, LocaleID: Integer; out TypeInfo): HResult;
begin
  Pointer(TypeInfo) := nil;
  Result := E_NOTIMPL;
end;

function TLeavingListener.GetIDsOfNames(const IID: TGUID; Names: Pointer; NameCount, LocaleID: Integer;
  DispIDs: Pointer): HResult;
begin
  Result := E_NOTIMPL;
end;

{ The call comes from inside the component, on the way out of a window: note it, act on it later. }
function TLeavingListener.Invoke(DispID: Integer; const IID: TGUID; LocaleID: Integer; Flags: Word; var Params;
  VarResult, ExcepInfo, ArgErr: Pointer): HResult;
begin
  if DispID = Iesire then
    WriteLn('Iesire');
  Result := S_OK;
end;

procedure ShowUtilities(const ConnectionString: string);
var
  Connection, Utile: OleVariant;
  Listener: IDispatch;
  Cookie: Integer;
begin
  // The program's own connection to its database. The utilities borrow it: it has to stay open while they are up.
  Connection := CreateOleObject('ADODB.Connection');
  Connection.Open(ConnectionString);
  Utile := CreateOleObject('Tavrin.Utile');
  Listener := TLeavingListener.Create;
  InterfaceConnect(Utile, EventInterface, Listener, Cookie);

  // The connection, the working date, the year of the financial year (a number), and the Id of the company.
  Utile.Apel(Connection, VarFromDateTime(EncodeDate(2003, 11, 28)), 2003, 1);
  // Stands for Application.Run and the program's own form.
  MessageBox(0, 'Close the utilities, then press OK.', 'Accounting', MB_OK);

  InterfaceDisconnect(Utile, EventInterface, Cookie);
  // Lets go of the object before the connection that it works on.
  Utile := Unassigned;
  Connection.Close;
end;

begin
  CoInitialize(nil);
  ShowUtilities(ParamStr(1));
  CoUninitialize;
end.
