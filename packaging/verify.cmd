@echo off
rem Usage: .\verify.cmd [--quick | --filter PATTERN] ["CONNECTION STRING"]
rem
rem Tries the Tavrin.dll of this folder on this desktop and writes report.txt beside it. .\verify.cmd --help says more. With a path before it, as
rem VERIFY alone is a command of the interpreter.
"%~dp0tavrin_verify.exe" %*
