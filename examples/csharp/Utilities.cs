// C# with the component's interface declared in the program itself, so no interop assembly is needed. Tavrin.dll must
// be registered (regsvr32 /n /i:user Tavrin.dll), with the bitness of the program: compile with /platform:x86 or x64.
//
//   csc /platform:x86 Utilities.cs      then      Utilities.exe "Provider=...;Data Source=...;Initial Catalog=..."
using System;
using System.Reflection;
using System.Runtime.InteropServices;
using System.Runtime.InteropServices.ComTypes;

[ComImport, Guid("cf9cf74d-7589-4b78-8c15-f2165997d746"), InterfaceType(ComInterfaceType.InterfaceIsDual)]
public interface _Utile
{
    // The connection goes by reference; the year is a number and the last argument the Id of the company.
    [DispId(1)]
    void Apel([MarshalAs(UnmanagedType.IDispatch)] ref object connection, DateTime workingDate, short year, int company);
}

[ComVisible(true), Guid("51f3b231-8d50-4570-9a1f-3bba5b5f9b33"), InterfaceType(ComInterfaceType.InterfaceIsIDispatch)]
public interface __Utile
{
    [DispId(1)]
    void Iesire();
}

// Hears that the user has left. ClassInterface.None: the component asks for the event interface alone.
[ComVisible(true), ClassInterface(ClassInterfaceType.None)]
public sealed class Listener : __Utile
{
    public void Iesire() { Console.WriteLine("Iesire"); }
}

public static class Program
{
    [DllImport("user32.dll", CharSet = CharSet.Unicode)]
    private static extern int MessageBoxW(IntPtr owner, string text, string caption, uint kind);

    [STAThread] // windows live in a single-threaded apartment
    public static void Main(string[] arguments)
    {
        Type ado = Type.GetTypeFromProgID("ADODB.Connection");
        object connection = Activator.CreateInstance(ado);
        ado.InvokeMember("Open", BindingFlags.InvokeMethod, null, connection, new object[] { arguments[0] });

        object utile = Activator.CreateInstance(Type.GetTypeFromProgID("Tavrin.Utile"));
        Guid events = typeof(__Utile).GUID;
        IConnectionPoint point;
        ((IConnectionPointContainer)utile).FindConnectionPoint(ref events, out point);
        int cookie;
        point.Advise(new Listener(), out cookie);

        ((_Utile)utile).Apel(ref connection, new DateTime(2003, 11, 28), 2003, 1);
        // Stands for Application.Run and the program's own form.
        MessageBoxW(IntPtr.Zero, "Close the utilities, then press OK.", "Accounting", 0);
        point.Unadvise(cookie);
    }
}
